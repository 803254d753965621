#pragma once

#include "io/KeyPath.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace marlevo {

/// A plain, strict check of JSON text (RFC 8259). The fast parser does not check the text that it
/// skips, and does not report the place of an error.
class JsonSyntax {
public:
    /// Maximum depth of nested arrays and objects.
    static constexpr std::size_t maxDepth = 512;

    /// The place and the reason of an error in the text.
    struct Fault {
        std::size_t offset;  ///< in bytes
        KeyPath path;        ///< of the value with the error
        std::string_view reason;
    };

    /// Nothing if the text is one value, with or without white space around it.
    static std::optional<Fault> findFault(std::string_view text);

    /// True if the text starts with a value and the ',' or '}' that ends a member. The value is
    /// inside `depth` arrays and objects.
    static bool startsWithMemberValue(std::string_view text, std::size_t depth);

    /// The string at the start of the text, without its quotes and with its escapes. Nothing if the
    /// text starts with another value or the string is malformed.
    static std::optional<std::string_view> leadingString(std::string_view text);

    /// The number at the start of the text. Nothing if the text starts with another value.
    static std::optional<std::string_view> leadingNumber(std::string_view text);
};

}  // namespace marlevo
