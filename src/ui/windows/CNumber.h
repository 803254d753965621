#pragma once

#include <optional>
#include <string_view>

namespace marlevo {

/// Parses the whole text as a number in C notation, independent of the locale: an optional sign,
/// digits with "." as the decimal point, an optional exponent. Returns nothing for any other text,
/// infinity and NaN.
std::optional<double> parseCNumber(std::string_view text);

}  // namespace marlevo
