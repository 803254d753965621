#pragma once

#include "ui/controls/ToolButton.h"

#include <QList>

class QHBoxLayout;

namespace marlevo {

/// The header of a section with a chevron, which turns as the section opens. The owner opens and
/// closes the section.
class DisclosureButton final : public ToolButton {
    Q_OBJECT

public:
    /// `name` is the accessible name. The widgets of `header` become children, side by side.
    DisclosureButton(const QString& name, const QList<QWidget*>& header, QWidget* parent = nullptr);

    /// Turns the chevron: 0 for a closed section, 1 for an open one.
    void showOpening(double share);

    bool isOpen() const { return isOpen_; }
    void setOpen(bool open);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QHBoxLayout* row_;
    double opening_ = 0;
    bool isOpen_ = false;
};

}  // namespace marlevo
