#include "tools/FillTool.h"

#include "model/DrawingDocument.h"
#include "render/RasterCompositing.h"
#include "tools/FloodFill.h"
#include "tools/PixelAddress.h"
#include "tools/TraceBoundary.h"

#include <span>
#include <string>
#include <vector>

namespace marlevo {

namespace {

/// The vertices of a shape that describes the region: its outline, or the box around it where the
/// outline has too few vertices.
std::vector<GridPoint> shapeOf(const Region& region) {
    std::vector<GridPoint> outline = traceBoundary(region);
    if (outline.size() >= 3) return outline;
    const auto box = boundingRectangle(region);
    return {box.begin(), box.end()};
}

/// Grid vertices as canvas points: the grid's rows count upwards from the lower edge.
PointList canvasPoints(std::span<const GridPoint> vertices, int gridHeight) {
    std::vector<Point> points;
    points.reserve(vertices.size());
    for (const GridPoint v : vertices) {
        points.push_back({static_cast<double>(v.x), static_cast<double>(gridHeight - v.y)});
    }
    return PointList(std::move(points));
}

}  // namespace

void performFill(DrawingDocument& document, Point at) {
    document.ensureLayers();
    const auto image = renderForFill(document);
    if (!image) return;
    const auto seed = pixelAddress(at, *image);
    if (!seed) return;
    const Region region =
        floodFill(*image, {seed->column, image->height() - 1 - seed->row}, fillTolerance);

    document.saveState();
    auto& layers = document.layers;
    Layer layer("Fill " + std::to_string(layers->size()));
    layers.modifyAndPublish([&](LayerList& all) { all.push_back(std::move(layer)); });
    document.activeLayerIndex = static_cast<std::int64_t>(layers->size()) - 1;

    Stroke shape{canvasPoints(shapeOf(region), image->height()),
                 document.selectedColor,
                 0,
                 document.brushOpacity,
                 false,
                 true,
                 Stroke::ShapeType::freehand};
    layers.modifyAndPublish([&](LayerList& all) { all.back().strokes.append(std::move(shape)); });
}

}  // namespace marlevo
