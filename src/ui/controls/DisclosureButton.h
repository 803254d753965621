#pragma once

#include "ui/controls/PaintedButton.h"

#include <QList>

class QHBoxLayout;

namespace marlevo {

/// The line that opens and closes a section: a chevron, which turns, and the section's header.
class DisclosureButton final : public PaintedButton {
    Q_OBJECT

public:
    /// `name` is the accessible name. The widgets of `header` become children, side by side.
    DisclosureButton(const QString& name, const QList<QWidget*>& header, QWidget* parent = nullptr);

    /// How far the section is open, from 0 to 1.
    void showOpening(double share);

    bool isOpen() const { return isOpen_; }
    void setOpen(bool open);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintContents(QPainter& painter) override;

private:
    QHBoxLayout* row_;
    double opening_ = 0;
    bool isOpen_ = false;
};

}  // namespace marlevo
