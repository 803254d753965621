#pragma once

#include "graphics/Point.h"
#include "graphics/RasterImage.h"
#include "tools/FloodFill.h"
#include "tools/TraceBoundary.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace marlevo::bench {

/// Makes outlines in the way of the fill tool: floods a picture, traces the outer edge of the
/// region and simplifies it. The pictures are random spots that join into one ragged shape.
class TracedRegions {
public:
    TracedRegions(int width, int height) : width_(width), height_(height) {}

    /// The outline of a region with `least` to `most` points.
    std::vector<Point> outline(std::size_t least, std::size_t most) {
        for (;;) {
            const std::vector<GridPoint> vertices = tracedRegion();
            if (vertices.size() < least || vertices.size() > most) continue;
            std::vector<Point> points;
            for (const GridPoint v : vertices) {
                points.push_back({static_cast<double>(v.x), static_cast<double>(height_ - v.y)});
            }
            return points;
        }
    }

private:
    static constexpr int spotSize = 4;

    double between(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random_);
    }

    std::vector<GridPoint> tracedRegion() {
        const Point center{between(0.3, 0.7) * width_, between(0.3, 0.7) * height_};
        const double radius = between(450, 650);
        const int columns = width_ / spotSize + 2;
        std::vector<double> knots(static_cast<std::size_t>(columns) * (height_ / spotSize + 2));
        for (double& knot : knots)
            knot = between(-1, 1);
        const auto noise = [&](int x, int y) {
            const auto eased = [](int at) {
                const double t = static_cast<double>(at % spotSize) / spotSize;
                return t * t * (3 - 2 * t);
            };
            const double* const above = &knots[y / spotSize * columns + x / spotSize];
            const double* const below = above + columns;
            return std::lerp(std::lerp(above[0], above[1], eased(x)),
                             std::lerp(below[0], below[1], eased(x)), eased(y));
        };

        std::vector<std::uint8_t> bytes(std::size_t{4} * width_ * height_, 255);
        GridPoint seed;
        double seedDistance = 1e9;
        for (int y = 0; y < height_; ++y) {
            for (int x = 0; x < width_; ++x) {
                const double distance = std::hypot(x - center.x, y - center.y);
                if (noise(x, y) + 0.1 * (1 - distance / radius) <= 0) continue;
                bytes[4 * (static_cast<std::size_t>(y) * width_ + x) + 1] = 0;
                if (distance < seedDistance) {
                    seedDistance = distance;
                    seed = {x, height_ - 1 - y};
                }
            }
        }
        return traceBoundary(floodFill(RasterImage(width_, height_, std::move(bytes)), seed));
    }

    int width_;
    int height_;
    std::mt19937 random_{5};
};

}  // namespace marlevo::bench
