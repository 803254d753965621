#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace marlevo {

/// Number of characters that writeNumber() may overwrite, more than any text has.
inline constexpr std::size_t maxNumberLength = 40;

/// Writes a finite number as JSON that reads back to the same double, and returns the end of the
/// text.
///
/// A number with a fraction has the fewest digits that read back, and of those texts the nearest
/// one. A whole number below 2^53 has no fraction and no exponent; −0 is "-0". From 2^53 on the
/// text is the shortest one, which can have more digits than needed: 123456789012345683968 instead
/// of 1.2345678901234568e+20.
char* writeNumber(double number, char* to);

/// Parses the whole text as a number in C notation, independent of the locale: an optional sign,
/// digits with "." as the decimal point, an optional exponent. Returns nothing for any other text,
/// infinity and NaN.
std::optional<double> parseNumber(std::string_view text);

}  // namespace marlevo
