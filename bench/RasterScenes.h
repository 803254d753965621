#pragma once

#include "bench/TracedRegions.h"
#include "graphics/Color.h"
#include "graphics/Path.h"

#include <cmath>
#include <numbers>
#include <random>
#include <string>
#include <vector>

namespace marlevo::bench {

inline constexpr int sceneWidth = 1280;
inline constexpr int sceneHeight = 720;

struct Shape {
    Path path;
    Color color;
    double opacity = 1;
    double lineWidth = 0;  ///< 0: filled
};

struct Scene {
    std::string name;
    std::vector<Shape> shapes;
};

/// A freehand stroke, smoothed as in the program: curves between the midpoints of its points.
inline Path smoothed(const std::vector<Point>& points) {
    Path path;
    path.move(points.front());
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        const Point a = points[i];
        const Point b = points[i + 1];
        path.addQuadCurve({(a.x + b.x) * 0.5, (a.y + b.y) * 0.5}, a);
    }
    path.addLine(points.back());
    return path;
}

/// Random shapes that are the same in every run.
class SceneMaker {
public:
    Scene strokes(std::string name, int count, int points, double minWidth, double maxWidth,
                  double opacity) {
        Scene scene{std::move(name), {}};
        for (int i = 0; i < count; ++i) {
            scene.shapes.push_back(
                {smoothed(randomWalk(points)), color(), opacity, between(minWidth, maxWidth)});
        }
        return scene;
    }

    /// Outlines that the fill tool makes of regions, drawn with the curves of strokes.
    Scene fills(int count, int points) {
        Scene scene{"fills of traced regions, 4,000 points", {}};
        TracedRegions regions(sceneWidth, sceneHeight);
        for (int i = 0; i < count; ++i) {
            const auto outline = regions.outline(points * 9 / 10, points * 11 / 10);
            scene.shapes.push_back({smoothed(outline), color(), 1, 0});
        }
        return scene;
    }

    /// Outlines whose points are a third of a pixel apart, closer than the fill tool leaves them.
    /// Measures little else than the reading of points.
    Scene denseOutlines(int count, int points) {
        Scene scene{"dense outlines, 4,000 points", {}};
        for (int i = 0; i < count; ++i) {
            scene.shapes.push_back({smoothed(blob(points)), color(), 1, 0});
        }
        return scene;
    }

    Scene shapes(int count) {
        Scene scene{"rectangles, ellipses, lines, width 3", {}};
        for (int i = 0; i < count; ++i) {
            const Point a = anywhere();
            const Point b = anywhere();
            const Rect rect{{std::min(a.x, b.x), std::min(a.y, b.y)},
                            {std::abs(b.x - a.x), std::abs(b.y - a.y)}};
            Path path;
            switch (i % 3) {
            case 0:
                path.addRect(rect);
                break;
            case 1:
                path.addEllipse(rect);
                break;
            default:
                path.move(a);
                path.addLine(b);
                break;
            }
            scene.shapes.push_back({path, color(), 1, 3});
        }
        return scene;
    }

private:
    double between(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random_);
    }
    Color color() { return {between(0, 1), between(0, 1), between(0, 1), 1}; }
    Point anywhere() { return {between(0, sceneWidth), between(0, sceneHeight)}; }

    std::vector<Point> randomWalk(int count) {
        std::vector<Point> points{anywhere()};
        while (static_cast<int>(points.size()) < count) {
            const Point last = points.back();
            points.push_back({last.x + between(-8, 8), last.y + between(-8, 8)});
        }
        return points;
    }

    std::vector<Point> blob(int count) {
        const Point center = anywhere();
        const double size = between(40, 250);
        const double lobes = std::floor(between(3, 9));
        std::vector<Point> points;
        for (int i = 0; i < count; ++i) {
            const double angle = 2 * std::numbers::pi * i / count;
            const double radius = size * (1 + 0.3 * std::sin(lobes * angle)) + between(-1, 1);
            points.push_back(
                {center.x + radius * std::cos(angle), center.y + radius * std::sin(angle)});
        }
        return points;
    }

    std::mt19937 random_{20};
};

}  // namespace marlevo::bench
