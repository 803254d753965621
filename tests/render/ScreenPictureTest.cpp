#include "render/ScreenPicture.h"

#include "tests/support/Strokes.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace marlevo {
namespace {

std::vector<std::uint8_t> paint(ScreenPicture& picture, const DrawingDocument& document,
                                double scale, const IntRect& area) {
    std::vector<std::uint8_t> pixels(static_cast<std::size_t>(area.width()) * area.height() * 4,
                                     0xAB);
    picture.paint(document, scale,
                  {pixels.data(), std::ptrdiff_t{area.width()} * 4, area, PixelOrder::bgra});
    return pixels;
}

TEST(ScreenPicture, RepaintingTheDifferenceEqualsPaintingAnew) {
    std::mt19937 random(11);
    const auto below = [&](int end) { return std::uniform_int_distribution(0, end - 1)(random); };
    DrawingDocument document;
    document.canvasSize = CanvasSize{700, 500};
    document.ensureLayers();
    ScreenPicture kept;
    for (int step = 0; step < 300; ++step) {
        const int layer = below(static_cast<int>(document.layers->size()));
        switch (below(12)) {
        case 0:
            document.addLayer();
            break;
        case 1:
            document.deleteLayer(layer);
            break;
        case 2:
            document.moveLayer(layer, below(static_cast<int>(document.layers->size())));
            break;
        case 3:
            document.toggleLayerVisibility(layer);
            break;
        case 4:
            document.undo();
            break;
        case 5:
            document.redo();
            break;
        case 6:
            document.showGrid = !document.showGrid;
            break;
        case 7:
            if (below(10) == 0) document.clearActiveLayer();
            break;
        default: {
            document.saveState();
            std::vector<Point> points;
            for (int n = 2 + below(5); n > 0; --n)
                points.push_back({below(7200) / 10.0 - 10, below(5200) / 10.0 - 10});
            Stroke stroke = makeStroke(PointList(std::move(points)), below(40),
                                       Stroke::allShapeTypes[below(4)]);
            stroke.opacity = 0.6;
            stroke.isFill = below(4) == 0;
            document.layers.modify([&](LayerList& all) {
                StrokeList& strokes = all[layer].strokes;
                const int at = below(static_cast<int>(strokes.size()) + 3);
                if (at >= static_cast<int>(strokes.size()))
                    strokes.append(stroke);
                else if (below(2) == 0)
                    strokes.replace(at, stroke);
                else
                    strokes.erase(at);
            });
        }
        }
        const double scale = step < 200 ? 1 : 1.5;
        const IntRect area{below(300), below(200), 350 + below(350), 250 + below(250)};
        ScreenPicture fresh;
        ASSERT_EQ(paint(kept, document, scale, area), paint(fresh, document, scale, area)) << step;
    }
}

}  // namespace
}  // namespace marlevo
