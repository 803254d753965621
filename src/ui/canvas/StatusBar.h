#pragma once

#include "model/Follower.h"
#include "ui/controls/ContinuousSlider.h"
#include "ui/controls/TextLabel.h"

#include <QWidget>

#include <functional>

namespace marlevo {

class DrawingDocument;

/// The line below the canvas: the canvas's size, the number of strokes, the zoom with its controls,
/// and the name of the active layer.
class StatusBar final : public QWidget {
    Q_OBJECT

public:
    /// The document must outlive the bar; `fitToWindow` runs at a press on "Fit".
    StatusBar(DrawingDocument& document, std::function<void()> fitToWindow,
              QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOut(QWidget* actualSize, QWidget* fit);
    void showDocument();
    void shortenLabels();

    DrawingDocument& document_;
    TextLabel canvasSize_;
    TextLabel strokeCount_;
    ContinuousSlider zoom_;
    TextLabel zoomText_;
    TextLabel activeLayer_;
    Follower follower_;
};

}  // namespace marlevo
