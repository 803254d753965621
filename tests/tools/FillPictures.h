#pragma once

#include "graphics/RasterImage.h"
#include "tools/GridPoint.h"
#include "tools/Region.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace marlevo::fillpictures {

/// A region from its picture, top row first: '#' is one of its cells.
inline Region regionFrom(const std::vector<std::string>& rows) {
    const int height = static_cast<int>(rows.size());
    Region region(static_cast<int>(rows.front().size()), height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < region.width(); ++x) {
            if (rows[height - 1 - y][x] == '#') region.insert({x, y});
        }
    }
    return region;
}

/// Opaque grey pixels: 200 where the region has cells, 10 elsewhere.
inline RasterImage pictureOf(const Region& region) {
    std::vector<std::uint8_t> bytes;
    for (int y = region.height() - 1; y >= 0; --y) {
        for (int x = 0; x < region.width(); ++x) {
            const std::uint8_t grey = region.contains({x, y}) ? 200 : 10;
            bytes.insert(bytes.end(), {255, grey, grey, grey});
        }
    }
    return {region.width(), region.height(), std::move(bytes)};
}

inline Region noise(int width, int height, double density, std::mt19937& random) {
    std::bernoulli_distribution isCell(density);
    Region region(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            if (isCell(random)) region.insert({x, y});
        }
    }
    return region;
}

/// One passage `corridor` cells wide that winds inwards between walls one cell wide.
inline Region spiral(int width, int height, int corridor) {
    Region region(width, height);
    int left = 0;
    int bottom = 0;
    int right = width;
    int top = height;
    const auto open = [&](int fromX, int fromY, int toX, int toY) {
        for (int y = std::max(fromY, 0); y < std::min(toY, height); ++y) {
            for (int x = std::max(fromX, 0); x < std::min(toX, width); ++x)
                region.insert({x, y});
        }
    };
    while (right - left > 2 * corridor + 1 && top - bottom > 2 * corridor + 1) {
        // Along the bottom, up the right, back along the top and down to the next turn.
        open(left - corridor - 1, bottom, right, bottom + corridor);
        open(right - corridor, bottom, right, top);
        open(left, top - corridor, right, top);
        open(left, bottom + corridor + 1, left + corridor, top);
        left += corridor + 1;
        bottom += corridor + 1;
        right -= corridor + 1;
        top -= corridor + 1;
    }
    return region;
}

/// Noise of all densities, some of which make labyrinths, on large and on narrow grids.
inline std::vector<Region> variousRegions(std::mt19937& random) {
    std::vector<Region> regions;
    for (const double density : {0.05, 0.3, 0.5, 0.6, 0.65, 0.8, 0.97, 1.0}) {
        for (const auto& [width, height] : {std::pair{1, 1},
                                            {1, 40},
                                            {70, 1},
                                            {2, 150},
                                            {129, 2},
                                            {63, 30},
                                            {64, 31},
                                            {65, 29},
                                            {140, 90}}) {
            regions.push_back(noise(width, height, density, random));
        }
    }
    for (const int corridor : {1, 5})
        regions.push_back(spiral(131, 67, corridor));
    return regions;
}

}  // namespace marlevo::fillpictures
