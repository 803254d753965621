#pragma once

#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace marlevo {

/// Room that writeFixed() may need.
inline constexpr std::size_t maxFixedLength = 24;

/// Writes a number rounded to so many decimals and returns the end of the text: no exponent, no
/// trailing zeros, no sign for zero, the point as the decimal sign in every locale.
///
/// Its magnitude is at most 10^(18 − decimals); it is not NaN.
template <int decimals>
char* writeFixed(double number, char* to) {
    constexpr std::uint64_t unit = [] {
        std::uint64_t power = 1;
        for (int i = 0; i < decimals; ++i)
            power *= 10;
        return power;
    }();
    const double scaled = std::abs(number) * static_cast<double>(unit);
    // std::llround() is a call into the library, and these numbers are positive.
    // NOLINTNEXTLINE(bugprone-incorrect-roundings)
    const auto rounded = static_cast<std::uint64_t>(scaled + 0.5);
    if (number < 0 && rounded != 0) *to++ = '-';
    to = std::to_chars(to, to + maxFixedLength, rounded / unit).ptr;
    std::uint64_t fraction = rounded % unit;
    if (fraction == 0) return to;
    *to++ = '.';
    for (std::uint64_t place = unit / 10; fraction != 0; place /= 10) {
        *to++ = static_cast<char>('0' + fraction / place);
        fraction %= place;
    }
    return to;
}

}  // namespace marlevo
