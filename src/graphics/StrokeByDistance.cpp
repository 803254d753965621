#include "graphics/StrokeByDistance.h"

#include "graphics/DistanceField.h"
#include "graphics/RoundPen.h"
#include "graphics/SegmentInStrip.h"

#include <algorithm>
#include <cmath>
#include <iterator>

// Compiles this file once for each instruction set; must come before what includes Highway.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "graphics/StrokeByDistance.cpp"
#include <hwy/foreach_target.h>
// After foreach_target.h, which says what to compile it for.
#include "graphics/BlendVector-inl.h"

HWY_BEFORE_NAMESPACE();
namespace marlevo::HWY_NAMESPACE {

constexpr int blockWidth = DistanceField::blockWidth;
constexpr int blockHeight = DistanceField::blockHeight;
using Block = DistanceField::Block;

#if HWY_TARGET != HWY_SCALAR

/// Lowers the distances of consecutive blocks to those from a segment, in the very operations of
/// SegmentInStrip::squaredDistance.
HWY_INLINE void lowerDistances(Block* blocks, int count, float firstRow,
                               const SegmentInStrip& segment) {
    const hn::CappedTag<float, DistanceField::blockPixels> d;
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

/// Turns a block's distances into coverages, as RoundPen::coverage does, and makes it far again.
HWY_INLINE void takeCoverage(Block& block, const RoundPen& pen, std::int32_t* coverage) {
    const hn::CappedTag<float, DistanceField::blockPixels> d;
    const hn::RebindToSigned<decltype(d)> di;
    const auto edge = hn::Set(d, pen.edge);
    const auto full = hn::Set(d, pen.full);
    for (std::size_t i = 0; i < std::size(block.squares); i += hn::Lanes(d)) {
        const auto inside = hn::Sub(edge, hn::Sqrt(hn::Load(d, block.squares + i)));
        const auto share = hn::Min(hn::Max(inside, hn::Zero(d)), hn::Set(d, 1.0F));
        const auto rounded = hn::Add(hn::Mul(share, full), hn::Set(d, 0.5F));
        hn::Store(hn::ConvertTo(di, rounded), di, coverage + i);
        hn::Store(hn::Set(d, DistanceField::far), d, block.squares + i);
    }
}

HWY_INLINE void blendRow(std::uint8_t* pixels, const std::int32_t* coverage, PackedColor packed) {
    const hn::CappedTag<std::uint32_t, blockWidth> d32;
    const hn::RebindToSigned<decltype(d32)> di;
    const hn::Repartition<std::uint16_t, decltype(d32)> d16;
    const hn::Repartition<std::uint8_t, decltype(d32)> dBytes;
    const auto color = spread(d32, loadPixelOfColor(d32, packed));
    const auto alpha = hn::Set(d16, packed.alpha);
    for (std::size_t i = 0; i < blockWidth; i += hn::Lanes(d32)) {
        const auto below = hn::BitCast(d32, hn::LoadU(dBytes, pixels + 4 * i));
        const auto cover = hn::BitCast(d32, hn::Load(di, coverage + i));
        const auto blended = blendPixels(d32, below, cover, color, alpha);
        hn::StoreU(hn::BitCast(dBytes, blended), dBytes, pixels + 4 * i);
    }
}

#else

void lowerDistances(Block* blocks, int count, float firstRow, const SegmentInStrip& segment) {
    float row = firstRow;
    for (int block = 0; block < count; ++block) {
        float* square = blocks[block].squares;
        for (int y = 0; y < blockHeight; ++y, ++row) {
            for (int x = 0; x < blockWidth; ++x, ++square) {
                *square = std::min(*square, segment.squaredDistance(static_cast<float>(x), row));
            }
        }
    }
}

void takeCoverage(Block& block, const RoundPen& pen, std::int32_t* coverage) {
    for (float& square : block.squares) {
        *coverage++ = pen.coverage(square);
        square = DistanceField::far;
    }
}

void blendRow(std::uint8_t* pixels, const std::int32_t* coverage, PackedColor color) {
    for (int i = 0; i < blockWidth; ++i) {
        blendPixel(pixels + 4 * i, color, static_cast<std::uint8_t>(coverage[i]));
    }
}

#endif

/// Lowers a field's distances to those of segments.
class SegmentPainter {
public:
    SegmentPainter(DistanceField& field, double reach)
        : field_(field), reach_(reach), left_(field.left() - reach), top_(field.top() - reach),
          right_(field.left() + field.stripCount() * blockWidth + reach),
          bottom_(field.top() + field.blocksPerStrip() * blockHeight + reach) {}

    void add(Point a, Point b) {
        const double length = std::max(std::abs(b.x - a.x), std::abs(b.y - a.y));
        if (length <= maxPieceLength) {
            addPiece(a, b);
        } else {
            addInPieces(a, b, length);
        }
    }

private:
    // Keeps the rounding errors of coordinates relative to a piece below 1/2000 of a pixel.
    static constexpr double maxPieceLength = 2048;

    // Where the pieces meet depends on the segment only; those out of reach are skipped.
    void addInPieces(Point a, Point b, double length) {
        double first = 0;
        double last = 1;
        clip(a.x, b.x, left_, right_, first, last);
        clip(a.y, b.y, top_, bottom_, first, last);
        if (!(first <= last)) return;
        const double count = std::ceil(length / maxPieceLength);
        const auto pointAt = [&](int piece) {
            const double t = piece / count;
            return Point{a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
        };
        const auto start = static_cast<int>(std::max(std::floor(first * count) - 1, 0.0));
        const auto end = static_cast<int>(std::min(std::floor(last * count) + 2, count));
        for (int piece = start; piece < end; ++piece) {
            addPiece(pointAt(piece), pointAt(piece + 1));
        }
    }

    static void clip(double a, double b, double low, double high, double& first, double& last) {
        if (a == b) return;
        const double atLow = (low - a) / (b - a);
        const double atHigh = (high - a) / (b - a);
        first = std::max(first, std::min(atLow, atHigh));
        last = std::min(last, std::max(atLow, atHigh));
    }

    HWY_INLINE void addPiece(Point a, Point b) {
        const double minX = std::min(a.x, b.x);
        const double maxX = std::max(a.x, b.x);
        const double minY = std::min(a.y, b.y);
        const double maxY = std::max(a.y, b.y);
        if (maxX < left_ || minX > right_ || maxY < top_ || minY > bottom_) return;

        const MeasuredSegment measured(a, b);
        const int firstStrip = std::max(toStrip(minX - reach_), 0);
        const int lastStrip = std::min(toStrip(maxX + reach_), field_.stripCount() - 1);
        const double dx = b.x - a.x;
        const bool isNarrow = std::abs(dx) <= blockWidth;
        const double slope = isNarrow ? 0 : (b.y - a.y) / dx;
        for (int strip = firstStrip; strip <= lastStrip; ++strip) {
            const double x = field_.left() + strip * blockWidth;
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
            const int last = std::min(toBlock(toY + reach_), field_.blocksPerStrip() - 1);
            if (first > last) continue;
            field_.markTouched(strip, first, last);

            const double firstRow = field_.top() + first * blockHeight - measured.anchorRow;
            lowerDistances(field_.strip(strip) + first, last - first + 1,
                           static_cast<float>(firstRow), SegmentInStrip(measured, x));
        }
    }

    int toStrip(double x) const {
        return static_cast<int>(std::floor((x - field_.left()) / blockWidth));
    }
    int toBlock(double y) const {
        return static_cast<int>(std::floor((y - field_.top()) / blockHeight));
    }

    DistanceField& field_;
    double reach_;
    double left_;
    double top_;
    double right_;
    double bottom_;
};

void addSegments(DistanceField& field, const FlattenedPath& path, double reach) {
    SegmentPainter painter(field, reach);
    for (const FlattenedPath::SubPath& part : path.subPaths) {
        const std::span<const Point> points = path.pointsOf(part);
        if (part.closed || points.size() == 1) painter.add(points.back(), points.front());
        for (std::size_t i = 1; i < points.size(); ++i)
            painter.add(points[i - 1], points[i]);
    }
}

/// Adds the pixels that the field covers wholly, and makes it far again. False when it touches no
/// block that was not covered already.
bool addCovered(DistanceField& field, const RoundPen& pen, CoveredPixels& covered) {
    bool touchesOpen = false;
    for (int strip = 0; strip < field.stripCount(); ++strip) {
        const int left = field.left() + strip * blockWidth;
        Block* const blocks = field.strip(strip);
        field.takeTouched(strip, [&](int index) {
            const int top = field.top() + index * blockHeight;
            if (!covered.isOpen(left, top)) {
                std::fill(std::begin(blocks[index].squares), std::end(blocks[index].squares),
                          DistanceField::far);
                return;
            }
            touchesOpen = true;
            HWY_ALIGN std::int32_t coverage[DistanceField::blockPixels];
            takeCoverage(blocks[index], pen, coverage);
            std::uint32_t bits = 0;
            for (std::size_t i = 0; i < DistanceField::blockPixels; ++i)
                bits |= (coverage[i] == 255 ? 1U : 0U) << i;
            if (bits != 0) covered.addBlock(left, top, bits);
        });
    }
    return touchesOpen;
}

/// Raises the mask's coverages to those of the field, and makes the field far again.
void raiseToField(DistanceField& field, const RoundPen& pen, const CoverageMask& mask) {
    for (int strip = 0; strip < field.stripCount(); ++strip) {
        const int x = field.left() + strip * blockWidth;
        const int left = std::max(x, mask.area.left);
        const int right = std::min(x + blockWidth, mask.area.right);
        Block* const blocks = field.strip(strip);
        field.takeTouched(strip, [&](int index) {
            HWY_ALIGN std::int32_t coverage[DistanceField::blockPixels];
            takeCoverage(blocks[index], pen, coverage);
            for (int row = 0; row < blockHeight; ++row) {
                const int y = field.top() + index * blockHeight + row;
                if (y < mask.area.top || y >= mask.area.bottom) continue;
                const std::int32_t* const ofRow = coverage + std::ptrdiff_t{row} * blockWidth - x;
                for (int i = left; i < right; ++i) {
                    std::uint8_t& known = *mask.pixel(i, y);
                    known = std::max(known, static_cast<std::uint8_t>(ofRow[i]));
                }
            }
        });
    }
}

void blendField(DistanceField& field, const RoundPen& pen, const PixelBuffer& target,
                PackedColor color) {
    for (int strip = 0; strip < field.stripCount(); ++strip) {
        const int x = field.left() + strip * blockWidth;
        const int left = std::max(x, target.area.left);
        const int right = std::min(x + blockWidth, target.area.right);
        Block* const blocks = field.strip(strip);
        field.takeTouched(strip, [&](int index) {
            HWY_ALIGN std::int32_t coverage[DistanceField::blockPixels];
            takeCoverage(blocks[index], pen, coverage);
            for (int row = 0; row < blockHeight; ++row) {
                const int y = field.top() + index * blockHeight + row;
                if (y < target.area.top || y >= target.area.bottom) continue;
                const std::int32_t* const ofRow = coverage + std::ptrdiff_t{row} * blockWidth;
                if (right - left == blockWidth) {
                    blendRow(target.pixel(left, y), ofRow, color);
                } else {
                    for (int i = left; i < right; ++i) {
                        blendPixel(target.pixel(i, y), color,
                                   static_cast<std::uint8_t>(ofRow[i - x]));
                    }
                }
            }
        });
    }
}

}  // namespace marlevo::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace marlevo {

HWY_EXPORT(addSegments);
HWY_EXPORT(addCovered);
HWY_EXPORT(blendField);
HWY_EXPORT(raiseToField);

namespace {

// Larger strokes are drawn in bands, which keeps the field in the second-level cache.
constexpr int maxFieldPixels = 1 << 17;

IntRect touchedArea(const FlattenedPath& path, double reach, const IntRect& area) {
    double minX = area.right + reach;
    double minY = area.bottom + reach;
    double maxX = area.left - reach;
    double maxY = area.top - reach;
    for (const Point& p : path.points) {
        minX = std::min(minX, p.x);
        minY = std::min(minY, p.y);
        maxX = std::max(maxX, p.x);
        maxY = std::max(maxY, p.y);
    }
    const auto toPixel = [](double value, int low, int high) {
        return static_cast<int>(std::clamp<double>(value, low, high));
    };
    return {toPixel(std::floor(minX - reach), area.left, area.right),
            toPixel(std::floor(minY - reach), area.top, area.bottom),
            toPixel(std::ceil(maxX + reach), area.left, area.right),
            toPixel(std::ceil(maxY + reach), area.top, area.bottom)};
}

/// Calls take(field, pen, band) with the distances in each band of `area` that the pen touches.
template <typename Take>
void forEachBand(const FlattenedPath& path, double deviceWidth, const IntRect& area, Take take) {
    if (!(deviceWidth > 0) || area.isEmpty()) return;
    const RoundPen pen(deviceWidth);
    const IntRect touched = touchedArea(path, pen.reach, area);
    if (touched.isEmpty()) return;

    thread_local DistanceField field;
    const int bandHeight = std::max(maxFieldPixels / touched.width(), 2);
    for (int top = touched.top; top < touched.bottom; top += bandHeight) {
        const IntRect band{touched.left, top, touched.right,
                           std::min(top + bandHeight, touched.bottom)};
        field.reset(band);
        HWY_DYNAMIC_DISPATCH(addSegments)(field, path, pen.reach);
        take(field, pen, band);
    }
}

}  // namespace

void strokeByDistance(const FlattenedPath& path, double deviceWidth, const PixelBuffer& target,
                      PackedColor color) {
    if (color.alpha == 0) return;
    forEachBand(path, deviceWidth, target.area,
                [&](DistanceField& field, const RoundPen& pen, const IntRect& band) {
                    PixelBuffer pixels = target;
                    pixels.area = band;
                    pixels.bytes = target.pixel(band.left, band.top);
                    HWY_DYNAMIC_DISPATCH(blendField)(field, pen, pixels, color);
                });
}

void coverByDistance(const FlattenedPath& path, double deviceWidth, const CoverageMask& mask) {
    forEachBand(path, deviceWidth, mask.area,
                [&](DistanceField& field, const RoundPen& pen, const IntRect& band) {
                    const CoverageMask part{mask.pixel(band.left, band.top), mask.stride, band};
                    HWY_DYNAMIC_DISPATCH(raiseToField)(field, pen, part);
                });
}

bool addCoveredByDistance(const FlattenedPath& path, double deviceWidth, const IntRect& area,
                          CoveredPixels& covered) {
    bool touchesOpen = false;
    forEachBand(path, deviceWidth, area,
                [&](DistanceField& field, const RoundPen& pen, const IntRect&) {
                    if (HWY_DYNAMIC_DISPATCH(addCovered)(field, pen, covered)) touchesOpen = true;
                });
    return touchesOpen;
}

IntRect areaByDistance(const FlattenedPath& path, double deviceWidth) {
    constexpr int limit = static_cast<int>(FlattenedPath::maxCoordinate) * 2;
    return touchedArea(path, RoundPen(deviceWidth).reach, {-limit, -limit, limit, limit});
}

}  // namespace marlevo
#endif
