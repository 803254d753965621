#pragma once

#include "graphics/RasterImage.h"
#include "tools/GridPoint.h"
#include "tools/Region.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <unordered_set>
#include <vector>

/// Slow definitions of the fill's steps: a stack and a hash set of cells, a recursion over points.
namespace marlevo::filldefinition {

using Cells = std::unordered_set<std::int64_t>;

inline Cells flood(const RasterImage& image, GridPoint seed, int tolerance) {
    const std::int64_t w = image.width();
    const std::int64_t h = image.height();
    const auto colorAt = [&](std::int64_t x, std::int64_t y) {
        return image.pixel(static_cast<int>(x), static_cast<int>(h - 1 - y));
    };
    const auto target = colorAt(seed.x, seed.y);
    Cells filled;
    std::vector<std::int64_t> stack{seed.y * w + seed.x};
    while (!stack.empty()) {
        const std::int64_t i = stack.back();
        stack.pop_back();
        if (filled.contains(i)) continue;
        const std::int64_t y = i / w;
        const std::int64_t x = i - y * w;
        const auto color = colorAt(x, y);
        bool matches = true;
        for (int k = 0; k < 4; ++k)
            matches &= std::abs(color[k] - target[k]) <= tolerance;
        if (!matches) continue;
        filled.insert(i);
        if (x > 0) stack.push_back(i - 1);
        if (x < w - 1) stack.push_back(i + 1);
        if (y > 0) stack.push_back(i - w);
        if (y < h - 1) stack.push_back(i + w);
    }
    return filled;
}

inline Cells cellsOf(const Region& region) {
    Cells cells;
    for (int y = 0; y < region.height(); ++y) {
        for (int x = 0; x < region.width(); ++x) {
            if (region.contains({x, y})) cells.insert(std::int64_t{y} * region.width() + x);
        }
    }
    return cells;
}

inline std::vector<GridPoint> outline(const Cells& filled, int w, int h) {
    constexpr int table[8][2] = {{1, 0},  {1, 1},   {0, 1},  {-1, 1},
                                 {-1, 0}, {-1, -1}, {0, -1}, {1, -1}};
    if (filled.empty()) return {};
    GridPoint start{w, 0};
    for (const std::int64_t i : filled) {
        const GridPoint cell{static_cast<int>(i % w), static_cast<int>(i / w)};
        if (cell.x < start.x || (cell.x == start.x && cell.y > start.y)) start = cell;
    }
    const auto isFilled = [&](GridPoint p) {
        return p.x >= 0 && p.x < w && p.y >= 0 && p.y < h &&
               filled.contains(std::int64_t{p.y} * w + p.x);
    };

    std::vector<GridPoint> outline;
    GridPoint previous{start.x - 1, start.y};
    GridPoint current = start;
    while (true) {
        outline.push_back(current);
        int back = 0;
        for (int d = 0; d < 8; ++d) {
            if (previous == GridPoint{current.x + table[d][0], current.y + table[d][1]}) back = d;
        }
        bool isFound = false;
        GridPoint next;
        for (int k = 1; k <= 8 && !isFound; ++k) {
            const int d = (back + k) % 8;
            next = {current.x + table[d][0], current.y + table[d][1]};
            isFound = isFilled(next);
        }
        if (!isFound) break;
        if (std::int64_t(outline.size()) - 1 >= std::int64_t{w} * h) break;
        previous = current;
        current = next;
        if (current == start) break;
    }
    return outline;
}

inline std::vector<GridPoint> simplified(const std::vector<GridPoint>& p, double epsilon) {
    if (p.size() < 3) return p;
    const GridPoint a = p.front();
    const GridPoint b = p.back();
    const double dx = double(std::int64_t{b.x} - a.x);
    const double dy = double(std::int64_t{b.y} - a.y);
    const double squaredLength = dx * dx + dy * dy;
    double largest = 0;
    std::size_t kept = 0;
    for (std::size_t i = 1; i + 1 < p.size(); ++i) {
        const double px = double(std::int64_t{p[i].x} - a.x);
        const double py = double(std::int64_t{p[i].y} - a.y);
        const double distance = squaredLength > 0
                                    ? std::abs(dy * px - dx * py) / std::sqrt(squaredLength)
                                    : std::sqrt(px * px + py * py);
        if (distance > largest) {
            largest = distance;
            kept = i;
        }
    }
    if (largest <= epsilon) return {a, b};
    std::vector<GridPoint> left = simplified({p.begin(), p.begin() + kept + 1}, epsilon);
    const std::vector<GridPoint> right = simplified({p.begin() + kept, p.end()}, epsilon);
    left.pop_back();
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

}  // namespace marlevo::filldefinition
