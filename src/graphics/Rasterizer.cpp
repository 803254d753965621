#include "graphics/Rasterizer.h"

#include "graphics/AccumulationBuffer.h"
#include "graphics/Bounds.h"
#include "graphics/Edge.h"
#include "graphics/Flatten.h"
#include "graphics/RasterScratch.h"
#include "graphics/RoundPen.h"
#include "graphics/Stroker.h"

#include <algorithm>
#include <cmath>
#include <variant>

namespace marlevo {

namespace {

/// The greatest number of pixels in a band of the distance field: it stays in the second-level
/// cache.
constexpr int maxFieldPixels = 1 << 17;

/// The greatest number of cells in a band of the accumulation buffer, unless one row is longer.
/// Only cells along edges are touched, so that most outlines need one band.
constexpr int maxBandCells = 1 << 18;

/// The box on the device that can leave a mark in `area` within `reach`; rounding adds a margin.
Bounds cullRect(const IntRect& area, double reach) { return Bounds::of(area).grownBy(reach + 2); }

/// The box of all the path's points, control points included.
Bounds boundsOf(const Path& path) {
    Bounds bounds;
    for (const Path::Element& e : path.elements()) {
        bounds.include(e.point);
        if (e.kind == Path::Kind::quadCurve) bounds.include(e.control);
        if (e.kind == Path::Kind::rect || e.kind == Path::Kind::ellipse)
            bounds.include({e.rect().maxX(), e.rect().maxY()});
    }
    return bounds;
}

/// False if the whole path is outside `cull`.
bool isVisible(const Path& path, const DeviceFrame& frame, const Bounds& cull) {
    return frame.map(boundsOf(path)).touches(cull);
}

const IntRect& areaOf(const CoverageSink& sink) {
    return std::visit([](const auto& each) -> const IntRect& { return each.area(); }, sink);
}

}  // namespace

DevicePen::DevicePen(double lineWidth, const DeviceFrame& frame)
    : width(lineWidth * std::abs(frame.scaleX)), height(lineWidth * std::abs(frame.scaleY)) {}

double DevicePen::reach() const { return std::max({width, height, RoundPen::thinnest}) / 2; }

void rasterizeFill(const Path& path, const DeviceFrame& frame, const BlendSink& sink) {
    const Bounds cull = cullRect(sink.area(), 0);
    if (!isVisible(path, frame, cull)) return;
    RasterScratch& scratch = RasterScratch::ofThread();
    flatten(path, frame, flatteningTolerance, scratch.flattened, OpenContours::close, cull);
    fillOutline(scratch.flattened, sink);
    scratch.trim();
}

void rasterizeStroke(const Path& path, double lineWidth, const DeviceFrame& frame,
                     const CoverageSink& sink) {
    const DevicePen pen(lineWidth, frame);
    const Bounds cull = cullRect(areaOf(sink), pen.reach());
    if (!pen.isVisible() || !isVisible(path, frame, cull)) return;
    RasterScratch& scratch = RasterScratch::ofThread();
    FlattenedPath& line = scratch.flattened;
    if (pen.drawsByDistance()) {
        flatten(path, frame, flatteningTolerance, line, OpenContours::keep, cull);
        strokeByDistance(line, pen.width, sink);
    } else {
        // Not culled: a corner of the outline depends on the segments before and after it.
        flatten(path, frame, flatteningTolerance, line);
        strokeOutline(line, lineWidth, frame.scaleX, frame.scaleY, scratch.outline);
        fillOutline(scratch.outline, std::get<BlendSink>(sink));
    }
    scratch.trim();
}

void strokeByDistance(const FlattenedPath& line, double deviceWidth, const CoverageSink& sink) {
    const IntRect& area = areaOf(sink);
    if (!(deviceWidth > 0) || area.isEmpty()) return;
    const RoundPen pen(deviceWidth);
    const IntRect touched = Bounds::of(line.points).grownBy(pen.reach).pixelsWithin(area);
    if (touched.isEmpty()) return;

    const auto* const record = std::get_if<RecordSink>(&sink);
    const OcclusionMask* const occlusion = record != nullptr ? &record->occlusion : nullptr;
    DistanceField& field = RasterScratch::ofThread().field;
    const ResetOnException guard(field);
    const int bandHeight = std::max(maxFieldPixels / touched.width(), BlockGrid::blockHeight);
    int bottom = 0;
    for (int top = touched.top; top < touched.bottom; top = bottom) {
        // Bands end where blocks end: a block in two of them would be drawn twice.
        bottom = std::min((top + bandHeight) & -BlockGrid::blockHeight, touched.bottom);
        field.reset({touched.left, top, touched.right, bottom});
        field.add(line, pen.reach, occlusion);
        field.drainInto(sink, pen);
    }
}

void fillOutline(const FlattenedPath& outline, const BlendSink& sink) {
    constexpr double limit = Edge::limit;
    Bounds bounds;
    double nonFinite = 0;  // not a number if a coordinate is not finite
    for (const Point p : outline.points) {
        bounds.include(p);
        nonFinite += (p.x - p.x) + (p.y - p.y);
    }
    if (nonFinite != 0 || !bounds.isWithin({-limit, -limit, limit, limit})) {
        FlattenedPath closed = outline;
        for (FlattenedPath::Contour& contour : closed.contours)
            contour.closed = true;
        fillOutline(closed.clippedTo(limit), sink);
        return;
    }
    if (sink.area().isEmpty()) return;
    const IntRect touched = bounds.pixelsWithin(sink.area());
    if (touched.isEmpty()) return;

    RasterScratch& scratch = RasterScratch::ofThread();
    AccumulationBuffer& buffer = scratch.accumulation;
    const ResetOnException guard(buffer);
    std::vector<Edge>& below = scratch.edges;  // those that reach beyond the first band
    below.clear();
    const int bandRows = std::clamp(maxBandCells / touched.width(), 1, touched.height());
    for (int top = touched.top; top < touched.bottom; top += bandRows) {
        const int bottom = std::min(top + bandRows, touched.bottom);
        buffer.reset({touched.left, top, touched.right, bottom});
        if (top > touched.top) {
            for (const Edge& edge : below)
                buffer.add(edge);
        } else {
            const std::int32_t end = bottom < touched.bottom ? bottom * Edge::subpixels : INT32_MAX;
            forEachEdge(outline, [&](const Edge& edge) {
                buffer.add(edge);
                if (edge.y1 > end) below.push_back(edge);
            });
        }
        buffer.blendInto(sink.target, sink.color);
    }
}

}  // namespace marlevo
