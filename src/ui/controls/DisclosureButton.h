#pragma once

#include "ui/controls/ToolButton.h"

#include <QList>

class QHBoxLayout;
class QSpacerItem;

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
    int heightForWidth(int width) const override;

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QHBoxLayout* row_;
    QSpacerItem* roomForChevron_;
    double opening_ = 0;
    bool isOpen_ = false;
};

}  // namespace marlevo
