#pragma once

#include "model/CanvasSize.h"
#include "model/LayerList.h"

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace marlevo {

/// Random numbers that are the same on all machines and with all standard libraries.
class Random {
public:
    explicit Random(std::uint64_t seed) : engine_(seed) {}

    /// A number from `least` to below `most`.
    double between(double least, double most) {
        return least + (most - least) * static_cast<double>(engine_() >> 11) * 0x1p-53;
    }

private:
    std::mt19937_64 engine_;
};

/// Points about 8 pixels apart on a curve like one drawn by hand, inside the canvas.
std::vector<Point> scribble(Random& random, std::size_t points, const CanvasSize& canvas);

/// One layer of strokes of 40 points, 3 pixels wide, spread evenly over the canvas.
LayerList scribbles(std::size_t strokes, const CanvasSize& canvas);

}  // namespace marlevo
