#pragma once

#include <QToolButton>

namespace marlevo {

/// A tool button that MarlevoStyle measures and paints in one of the program's looks. It takes the
/// focus by Tab only, so that a click leaves the keys to the canvas.
class ToolButton : public QToolButton {
    Q_OBJECT

public:
    enum class Look : unsigned char {
        borderless,     ///< an icon of body size, 28 × 26 view points at least
        bordered,       ///< an icon of caption size in a frame, 24 × 22 view points at least
        compact,        ///< an icon of caption size that fills its button
        primaryTool,    ///< icon and label on a rounded rectangle, which is blue when checked
        secondaryTool,  ///< the same, with a blue outline and tint when checked
        menuRow,        ///< a label with an icon at the trailing edge
        listRow,        ///< a background that shows the checked state; a layout gives the size
        custom,         ///< painted and measured by the subclass
    };

    /// `name` is the accessible name.
    ToolButton(Look look, const QString& name, QWidget* parent = nullptr);

    Look look() const { return look_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    /// True if the pointer is over the button and a press has an effect.
    bool isHovered() const { return isEnabled() && underMouse(); }

private:
    Look look_;
};

}  // namespace marlevo
