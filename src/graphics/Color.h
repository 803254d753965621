#pragma once

namespace marlevo {

/// An sRGB colour; components from 0 to 1, not premultiplied. Values outside that range, which
/// a file may hold, are kept and clamped only when they are converted to pixels.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    friend bool operator==(const Color&, const Color&) = default;
};

inline constexpr Color black{0, 0, 0, 1};
inline constexpr Color white{1, 1, 1, 1};
inline constexpr Color clear{0, 0, 0, 0};

}  // namespace marlevo
