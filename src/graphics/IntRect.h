#pragma once

#include <algorithm>
#include <cstdint>

namespace marlevo {

/// A rectangle of whole device pixels: columns left … right − 1, rows top … bottom − 1, row 0 at
/// the top. Empty when right ≤ left or bottom ≤ top.
struct IntRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int width() const { return right - left; }
    int height() const { return bottom - top; }
    std::int64_t area() const { return isEmpty() ? 0 : std::int64_t{width()} * height(); }
    bool isEmpty() const { return right <= left || bottom <= top; }

    IntRect intersectedWith(const IntRect& other) const {
        return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
                std::min(bottom, other.bottom)};
    }

    /// The smallest rectangle that holds both; an empty operand is ignored.
    IntRect unitedWith(const IntRect& other) const {
        if (isEmpty()) return other;
        if (other.isEmpty()) return *this;
        return {std::min(left, other.left), std::min(top, other.top), std::max(right, other.right),
                std::max(bottom, other.bottom)};
    }

    friend bool operator==(const IntRect&, const IntRect&) = default;
};

}  // namespace marlevo
