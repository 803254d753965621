#pragma once

#include "ui/controls/Icons.h"
#include "ui/controls/ToolButton.h"

namespace marlevo {

/// A button that shows an icon, and its name in a tooltip.
class IconButton final : public ToolButton {
    Q_OBJECT

public:
    /// `name` is the accessible name and the tooltip.
    IconButton(Icon icon, const QString& name, Look look, QWidget* parent = nullptr);

    /// For assistive technology; false at first.
    bool opensPopover() const { return opensPopover_; }
    void setOpensPopover(bool opensPopover) { opensPopover_ = opensPopover; }

private:
    bool opensPopover_ = false;
};

}  // namespace marlevo
