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
    return regions;
}

}  // namespace marlevo::fillpictures
