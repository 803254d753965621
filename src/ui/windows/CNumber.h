#pragma once

#include <optional>
#include <string_view>

namespace marlevo {

/// The number that the whole text is in C notation, whatever the user's language: an optional sign,
/// digits with "." as the decimal point, an optional exponent. Infinity and not-a-number are none.
std::optional<double> parseCNumber(std::string_view text);

}  // namespace marlevo
