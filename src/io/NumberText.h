#pragma once

#include <cstddef>

namespace marlevo {

/// Room that writeNumber() may need, more than the text itself is long.
inline constexpr std::size_t maxNumberLength = 40;

/// Writes a finite number as JSON and returns the end of the text: the fewest digits that read back
/// to the same double (and of those the nearest), whole numbers below 2^53 without fraction or
/// exponent, −0 as "-0".
char* writeNumber(double number, char* to);

}  // namespace marlevo
