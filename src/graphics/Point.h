#pragma once

namespace marlevo {

/// A position, in canvas pixels unless said otherwise; y grows downwards.
struct Point {
    double x = 0;
    double y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

}  // namespace marlevo
