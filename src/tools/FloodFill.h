#pragma once

#include "graphics/RasterImage.h"
#include "tools/GridPoint.h"
#include "tools/Region.h"

namespace marlevo {

/// The largest difference, in each byte of a pixel, that the fill tool treats as the same colour.
inline constexpr int fillTolerance = 35;

/// The cells that are joined to `seed` through the sides of cells (never through a corner alone)
/// whose four bytes each differ by at most `tolerance` from those of the seed's pixel. A tolerance
/// below 0 counts as 0, one above 255 as 255. Every cell is compared with the seed, not with its
/// neighbour: a slow ramp ends the region.
///
/// `seed` is a cell of the grid laid over the picture (rows count upwards, see GridPoint); a seed
/// outside gives the empty region. Reads the blocks of 64 × 64 pixels that the region reaches, each
/// once; the cost follows the region and not the picture.
Region floodFill(const RasterImage& image, GridPoint seed, int tolerance = fillTolerance);

}  // namespace marlevo
