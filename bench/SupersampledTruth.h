#pragma once

#include "bench/RasterScenes.h"
#include "graphics/Flatten.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <vector>

namespace marlevo::bench {

/// The coverage of one shape from 8 × 8 samples a pixel, each inside or outside the exact shape.
class SupersampledTruth {
public:
    explicit SupersampledTruth(const Shape& shape)
        : samples_(static_cast<std::size_t>(sceneWidth) * sceneHeight) {
        FlattenedPath lines;
        const bool isFilled = shape.lineWidth == 0;
        flatten(shape.path, DeviceFrame::yDown(1), 0.005, lines,
                isFilled ? OpenContours::close : OpenContours::keep);
        for (const auto& part : lines.contours) {
            const auto points = lines.pointsOf(part);
            if (isFilled) continue;
            if (part.closed) markNear(points.back(), points.front(), shape.lineWidth / 2);
            for (std::size_t i = 1; i < points.size(); ++i) {
                markNear(points[i - 1], points[i], shape.lineWidth / 2);
            }
        }
        if (isFilled) markInside(lines);
    }

    /// From 0 to 255.
    double coverage(std::size_t pixel) const {
        return std::popcount(samples_[pixel]) * (255.0 / 64);
    }

private:
    static double sampleAt(int index) { return (index + 0.5) / 8; }

    void markNear(Point a, Point b, double radius) {
        const auto bounds = [&](double p, double q, int size) {
            const double low = std::floor(std::min(p, q) - radius);
            const double high = std::ceil(std::max(p, q) + radius);
            return std::pair(static_cast<int>(std::clamp<double>(low, 0, size)),
                             static_cast<int>(std::clamp<double>(high, 0, size)));
        };
        const auto [left, right] = bounds(a.x, b.x, sceneWidth);
        const auto [top, bottom] = bounds(a.y, b.y, sceneHeight);
        const double dx = b.x - a.x;
        const double dy = b.y - a.y;
        const double square = dx * dx + dy * dy;
        const auto distance = [&](double x, double y) {
            const double px = x - a.x;
            const double py = y - a.y;
            const double t = square > 0 ? std::clamp((px * dx + py * dy) / square, 0.0, 1.0) : 0;
            return std::sqrt((px - t * dx) * (px - t * dx) + (py - t * dy) * (py - t * dy));
        };
        constexpr double halfDiagonal = 0.71;
        for (int y = top; y < bottom; ++y) {
            for (int x = left; x < right; ++x) {
                std::uint64_t& mask = samples_[static_cast<std::size_t>(y) * sceneWidth + x];
                const double fromCenter = distance(x + 0.5, y + 0.5);
                if (mask == ~std::uint64_t{0} || fromCenter > radius + halfDiagonal) continue;
                for (int i = 0; i < 64; ++i) {
                    if (fromCenter < radius - halfDiagonal ||
                        distance(x + sampleAt(i % 8), y + sampleAt(i / 8)) <= radius) {
                        mask |= std::uint64_t{1} << i;
                    }
                }
            }
        }
    }

    void markInside(const FlattenedPath& lines) {
        struct Crossing {
            double x;
            int direction;
        };
        std::vector<std::vector<Crossing>> rows(static_cast<std::size_t>(sceneHeight) * 8);
        for (const auto& part : lines.contours) {
            const auto points = lines.pointsOf(part);
            Point a = points.back();
            for (const Point b : points) {
                const double low = std::max(std::min(a.y, b.y), 0.0);
                const double high = std::min<double>(std::max(a.y, b.y), sceneHeight);
                for (int row = static_cast<int>(low * 8); row < sceneHeight * 8; ++row) {
                    const double y = sampleAt(row);
                    if (y >= high) break;
                    if (y < low) continue;
                    rows[row].push_back(
                        {a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y), a.y < b.y ? 1 : -1});
                }
                a = b;
            }
        }
        for (std::size_t row = 0; row < rows.size(); ++row) {
            auto& crossings = rows[row];
            std::sort(crossings.begin(), crossings.end(),
                      [](const Crossing& p, const Crossing& q) { return p.x < q.x; });
            int winding = 0;
            std::size_t next = 0;
            for (int column = 0; column < sceneWidth * 8; ++column) {
                while (next < crossings.size() && crossings[next].x <= sampleAt(column)) {
                    winding += crossings[next++].direction;
                }
                if (winding == 0) continue;
                samples_[row / 8 * sceneWidth + column / 8] |= std::uint64_t{1}
                                                               << (row % 8 * 8 + column % 8);
            }
        }
    }

    std::vector<std::uint64_t> samples_;
};

}  // namespace marlevo::bench
