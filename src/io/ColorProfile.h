#pragma once

#include <cstdint>
#include <span>

namespace marlevo {

/// Whether the bytes are an ICC profile (ISO 15076-1) of the sRGB colour space. Compares primaries
/// and tone curves, not the name.
bool isSRGBProfile(std::span<const std::uint8_t> profile);

}  // namespace marlevo
