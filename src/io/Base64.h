#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace marlevo {

/// Base64 with the standard alphabet and padding of RFC 4648, section 4, without line breaks.

constexpr std::size_t base64Length(std::size_t byteCount) { return (byteCount + 2) / 3 * 4; }

/// Writes base64Length(bytes.size()) characters and returns the end of them.
char* encodeBase64(std::span<const std::uint8_t> bytes, char* to);

/// Nothing if the text differs from every text that encodeBase64() writes: a character outside the
/// alphabet (white space, too), missing or misplaced padding, unused bits that are not zero.
std::optional<std::vector<std::uint8_t>> decodeBase64(std::string_view text);

}  // namespace marlevo
