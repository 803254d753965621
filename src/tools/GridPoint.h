#pragma once

namespace marlevo {

/// A cell of the fill grid, or the vertex at that cell's lower left corner.
///
/// The grid has one cell a picture pixel. Column 0 is the leftmost one; rows count upwards, row 0
/// is the bottom row. Cell (x, y) of a picture h pixels high is the pixel in column x of the
/// picture's row h − 1 − y; vertex (x, y) is the canvas point (x, h − y).
struct GridPoint {
    int x = 0;
    int y = 0;

    friend bool operator==(const GridPoint&, const GridPoint&) = default;
};

}  // namespace marlevo
