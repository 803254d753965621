#pragma once

#include "ui/controls/TextLabel.h"

class QVBoxLayout;

namespace marlevo {

/// The title of a section of the sidebar, painted in upper case.
class SectionHeader final : public TextLabel {
    Q_OBJECT

public:
    explicit SectionHeader(const QString& title, QWidget* parent = nullptr);

protected:
    QString shownText() const override { return locale().toUpper(text()); }
};

/// Gives a section that is always open its title, and returns the column below it.
QVBoxLayout* makeSectionColumn(QWidget& section, const QString& title);

}  // namespace marlevo
