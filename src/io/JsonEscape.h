#pragma once

#include <string>
#include <string_view>

namespace marlevo {

/// The escapes in JSON strings (RFC 8259, section 7), as UTF-8.
struct JsonEscape {
    /// The UTF-16 code unit of the four hexadecimal digits at the start of the text, or −1.
    static int codeUnit(std::string_view text);

    static bool isHighSurrogate(int unit) { return unit >= 0xD800 && unit < 0xDC00; }
    static bool isLowSurrogate(int unit) { return unit >= 0xDC00 && unit < 0xE000; }

    /// The string with its escapes replaced. The escapes must be well-formed, as in a result of
    /// JsonSyntax::leadingString().
    static std::string replaceAll(std::string_view string);
};

}  // namespace marlevo
