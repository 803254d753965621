#pragma once

#include "model/Follower.h"
#include "ui/controls/ContinuousSlider.h"
#include "ui/controls/SmallButton.h"
#include "ui/controls/TextLabel.h"

#include <QWidget>

#include <functional>

namespace marlevo {

class DrawingDocument;

/// The line below the canvas: the canvas's size, the number of strokes, the zoom with its controls,
/// and the name of the active layer. Without enough room the name
/// is elided and texts are left out, which a tooltip then shows; the controls keep their size.
class StatusBar final : public QWidget {
    Q_OBJECT

public:
    /// The document must outlive the bar; `fitToWindow` runs at a press on "Fit".
    StatusBar(DrawingDocument& document, std::function<void()> fitToWindow,
              QWidget* parent = nullptr);

    /// As wide as the controls.
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    void layOut();
    void showDocument();
    int widthOfControls() const;
    void fitTexts();
    QString hiddenTexts() const;

    DrawingDocument& document_;
    TextLabel canvasSize_;
    TextLabel strokeCount_;
    ContinuousSlider zoom_;
    TextLabel zoomText_;
    SmallButton actualSize_;
    SmallButton fit_;
    TextLabel activeLayer_;
    bool hasActiveLayer_ = false;
    Follower follower_;
};

}  // namespace marlevo
