#pragma once

#include "graphics/Color.h"
#include "ui/controls/ChoiceButton.h"

#include <functional>

namespace marlevo {

/// A circle in one of the colours offered for quick choice.
class ColorSwatch final : public ChoiceButton {
    Q_OBJECT

public:
    /// How the swatch's colour stands to the selected one, which its outline shows.
    enum class Standing : unsigned char {
        other,  ///< another colour, or the tool does not draw in colours
        same,   ///< the same, though not of the strokes that the tool draws
        inUse,
    };

    /// `color` is asked each time, for it may follow the desktop's palette.
    ColorSwatch(const QString& name, std::function<Color()> color, QWidget* parent = nullptr);

    Color color() const { return color_(); }

    void showStanding(Standing standing);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintContents(QPainter& painter) override;
    double focusRadius() const override { return width() / 2.0; }

private:
    std::function<Color()> color_;
    Standing standing_ = Standing::other;
};

}  // namespace marlevo
