#pragma once

#include "graphics/Color.h"
#include "ui/controls/ChoiceButton.h"

#include <functional>

namespace marlevo {

/// A circle in one of the quick colours.
class ColorSwatch final : public ChoiceButton {
    Q_OBJECT

public:
    /// How the swatch's colour relates to the selected one. The outline shows it.
    enum class Selection : unsigned char {
        none,       ///< another colour, or the tool draws in no colour
        sameColor,  ///< the selected colour, while the tool does not draw strokes in it
        active,     ///< the colour of new strokes
    };

    /// `color` is called at each use, because its result may follow the desktop's palette.
    ColorSwatch(const QString& name, std::function<Color()> color, QWidget* parent = nullptr);

    Color color() const { return color_(); }

    void setSelection(Selection selection);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::function<Color()> color_;
    Selection selection_ = Selection::none;
};

}  // namespace marlevo
