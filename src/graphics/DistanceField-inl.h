// Distances of pixels from line segments, in vectors. Included once per instruction set, hence the
// guard.

#include "graphics/DistanceField.h"
#include "graphics/FlattenedPath.h"
#include "graphics/OcclusionMask.h"
#include "graphics/RoundPen.h"
#include "graphics/SegmentInStrip.h"

#include <hwy/highway.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <span>

#if defined(MARLEVO_GRAPHICS_DISTANCE_FIELD_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef MARLEVO_GRAPHICS_DISTANCE_FIELD_INL_H
#undef MARLEVO_GRAPHICS_DISTANCE_FIELD_INL_H
#else
#define MARLEVO_GRAPHICS_DISTANCE_FIELD_INL_H
#endif

HWY_BEFORE_NAMESPACE();
namespace marlevo::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

constexpr int blockWidth = BlockGrid::blockWidth;
constexpr int blockHeight = BlockGrid::blockHeight;
using Block = DistanceField::Block;

/// Lowers the distances in consecutive blocks to those from a segment, by the same operations as
/// SegmentInStrip::squaredDistance.
HWY_INLINE void lowerDistances(Block* blocks, int count, float firstRow,
                               const SegmentInStrip& segment) {
    const hn::CappedTag<float, BlockGrid::blockPixels> d;
    const hn::RebindToSigned<decltype(d)> di;
    constexpr int lanes = static_cast<int>(hn::MaxLanes(d));
    constexpr int columns = std::min(lanes, blockWidth);
    constexpr int rows = lanes / columns;
    constexpr int pixelsPerStep = rows * blockWidth;

    const auto index = hn::Iota(di, 0);
    const auto column = hn::ConvertTo(d, hn::And(index, hn::Set(di, columns - 1)));
    const auto row = hn::ConvertTo(d, hn::ShiftRight<3>(index));
    const auto cosine = hn::Set(d, segment.cosine);
    const auto sine = hn::Set(d, segment.sine);
    const auto halfLength = hn::Set(d, segment.halfLength);

    for (int left = 0; left < blockWidth; left += columns) {
        const auto x = hn::Add(column, hn::Set(d, static_cast<float>(left)));
        const auto across = hn::Sub(hn::Set(d, segment.across), hn::Mul(x, sine));
        const auto along = hn::Add(hn::Set(d, segment.along), hn::Mul(x, cosine));
        auto y = hn::Add(hn::Set(d, firstRow), row);
        float* squares = blocks->squares + left;
        for (int i = 0; i < count * blockHeight; i += rows) {
            const auto off = hn::Add(across, hn::Mul(y, cosine));
            const auto from = hn::Abs(hn::Add(along, hn::Mul(y, sine)));
            const auto past = hn::Max(hn::Sub(from, halfLength), hn::Zero(d));
            const auto square = hn::Add(hn::Mul(off, off), hn::Mul(past, past));
            hn::Store(hn::Min(square, hn::Load(d, squares)), d, squares);
            y = hn::Add(y, hn::Set(d, static_cast<float>(rows)));
            squares += pixelsPerStep;
        }
    }
}

/// Converts a block's distances to coverage as RoundPen::coverage does; the block is untouched
/// again.
HWY_INLINE void takeCoverage(Block& block, const RoundPen& pen, std::uint8_t* coverage) {
    const hn::CappedTag<float, BlockGrid::blockPixels> d;
    const hn::RebindToSigned<decltype(d)> di;
    const hn::Rebind<std::uint8_t, decltype(d)> dBytes;
    const auto edge = hn::Set(d, pen.edge);
    const auto full = hn::Set(d, pen.full);
    for (std::size_t i = 0; i < std::size(block.squares); i += hn::Lanes(d)) {
        const auto inside = hn::Sub(edge, hn::Sqrt(hn::Load(d, block.squares + i)));
        const auto share = hn::Min(hn::Max(inside, hn::Zero(d)), hn::Set(d, 1.0F));
        const auto rounded = hn::Add(hn::Mul(share, full), hn::Set(d, 0.5F));
        hn::StoreU(hn::DemoteTo(dBytes, hn::ConvertTo(di, rounded)), dBytes, coverage + i);
        hn::Store(hn::Set(d, DistanceField::untouched), d, block.squares + i);
    }
}

/// Lowers a field's distances to those from segments, except where all pixels are hidden.
class SegmentPainter {
public:
    /// `occlusion` may be null.
    SegmentPainter(DistanceField& field, double reach, const OcclusionMask* occlusion)
        : field_(field), grid_(field.grid()), occlusion_(occlusion), reach_(reach),
          left_(grid_.left() - reach), top_(grid_.top() - reach),
          right_(grid_.left() + grid_.stripCount() * blockWidth + reach),
          bottom_(grid_.top() + grid_.blocksPerStrip() * blockHeight + reach) {}

    void add(Point a, Point b) {
        const double length = std::max(std::abs(b.x - a.x), std::abs(b.y - a.y));
        if (length <= maxPieceLength) {
            addPiece(a, b);
            return;
        }
        // The pieces depend on the segment only.
        const int count = static_cast<int>(std::ceil(length / maxPieceLength));
        const auto pointAt = [&](int piece) {
            const double t = double(piece) / count;
            return Point{a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
        };
        for (int piece = 0; piece < count; ++piece)
            addPiece(pointAt(piece), pointAt(piece + 1));
    }

private:
    // Keeps the rounding errors of coordinates relative to a piece below 1/2000 of a pixel.
    static constexpr double maxPieceLength = 2048;

    HWY_INLINE void addPiece(Point a, Point b) {
        const double minX = std::min(a.x, b.x);
        const double maxX = std::max(a.x, b.x);
        const double minY = std::min(a.y, b.y);
        const double maxY = std::max(a.y, b.y);
        if (maxX < left_ || minX > right_ || maxY < top_ || minY > bottom_) return;

        const MeasuredSegment measured(a, b);
        const int firstStrip = std::max(toStrip(minX - reach_), 0);
        const int lastStrip = std::min(toStrip(maxX + reach_), grid_.stripCount() - 1);
        const double dx = b.x - a.x;
        const bool isNarrow = std::abs(dx) <= blockWidth;
        const double slope = isNarrow ? 0 : (b.y - a.y) / dx;
        for (int strip = firstStrip; strip <= lastStrip; ++strip) {
            const double x = grid_.left() + strip * blockWidth;
            double fromY = minY;
            double toY = maxY;
            if (!isNarrow) {
                const double right = x + blockWidth;
                const double y1 = a.y + (std::max(x - reach_, minX) - a.x) * slope;
                const double y2 = a.y + (std::min(right + reach_, maxX) - a.x) * slope;
                fromY = std::min(y1, y2);
                toY = std::max(y1, y2);
            }
            const int first = std::max(toBlock(fromY - reach_), 0);
            const int last = std::min(toBlock(toY + reach_), grid_.blocksPerStrip() - 1);
            if (first > last || isOccluded(strip, first, last)) continue;
            grid_.set(strip, first, last);

            const double firstRow = grid_.top() + first * blockHeight - measured.anchorRow;
            lowerDistances(field_.strip(strip) + first, last - first + 1,
                           static_cast<float>(firstRow), SegmentInStrip(measured, x));
        }
    }

    bool isOccluded(int strip, int first, int last) const {
        return occlusion_ != nullptr &&
               !occlusion_->anyVisible(grid_.left() + strip * blockWidth,
                                       grid_.top() + first * blockHeight, last - first + 1);
    }

    int toStrip(double x) const {
        return static_cast<int>(std::floor((x - grid_.left()) / blockWidth));
    }
    int toBlock(double y) const {
        return static_cast<int>(std::floor((y - grid_.top()) / blockHeight));
    }

    DistanceField& field_;
    BlockGrid& grid_;
    const OcclusionMask* occlusion_;
    double reach_;
    double left_;
    double top_;
    double right_;
    double bottom_;
};

void addSegments(DistanceField& field, const FlattenedPath& line, double reach,
                 const OcclusionMask* occlusion) {
    SegmentPainter painter(field, reach, occlusion);
    for (const FlattenedPath::Contour& contour : line.contours) {
        const std::span<const Point> points = line.pointsOf(contour);
        if (contour.closed || points.size() == 1) painter.add(points.back(), points.front());
        for (std::size_t i = 1; i < points.size(); ++i)
            painter.add(points[i - 1], points[i]);
    }
}

}  // namespace marlevo::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif
