#pragma once

#include "tests/ui/Pointer.h"
#include "ui/windows/ContentView.h"
#include "ui/windows/DocumentWindow.h"

#include <vector>

namespace marlevo {

/// Draws a lake in the evening in a window, with the mouse and the program's own tools: the brush,
/// a shape, the fill and the eraser. For a canvas of 1280 × 720.
class Landscape {
public:
    /// The window must be shown, and outlive the drawing.
    explicit Landscape(DocumentWindow& window);

    void draw();

private:
    void drawSky();
    void drawClouds();
    void drawSun();
    void drawMountains();
    void drawLake();
    void drawShore();
    void drawPine(Point foot, double height);
    void drawBirds();

    void pen(Color color, double width, double opacity = 1);
    void drag(const std::vector<Point>& way);
    void click(Point at) { drag({at}); }

    DrawingDocument& document_;
    Pointer pointer_;
};

}  // namespace marlevo
