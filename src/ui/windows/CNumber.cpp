#include "ui/windows/CNumber.h"

#include <charconv>
#include <cmath>

namespace marlevo {

std::optional<double> parseCNumber(std::string_view text) {
    // from_chars accepts no plus sign. Two signs are no number.
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) return std::nullopt;
    }
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || rest != end || !std::isfinite(number)) return std::nullopt;
    return number;
}

}  // namespace marlevo
