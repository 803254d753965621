#pragma once

#include "model/Follower.h"
#include "ui/controls/ColorSwatch.h"
#include "ui/controls/ColorWell.h"
#include "ui/controls/FocusGroup.h"
#include "ui/sidebar/ColorCircle.h"

#include <vector>

namespace marlevo {

class DrawingDocument;

/// The colour of new strokes: a circle that shows it, a well for any colour, and swatches.
class ColorRow final : public QWidget {
    Q_OBJECT

public:
    /// The document must outlive the row.
    explicit ColorRow(DrawingDocument& document, QWidget* parent = nullptr);

private:
    QLayout* makeSwatches();
    void showColor();
    void showSwatches();
    void choose(const Color& color);

    DrawingDocument& document_;
    ColorCircle circle_;
    ColorWell well_;
    std::vector<ColorSwatch*> swatches_;
    FocusGroup swatchFocus_;
    Follower colorFollower_;
    Follower swatchesFollower_;
};

}  // namespace marlevo
