#pragma once

#include "io/KeyPath.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace marlevo {

/// A plain, strict check of JSON text (RFC 8259): the second opinion beside the fast parser, which
/// does not look at what it skips and cannot say where it failed.
class JsonSyntax {
public:
    /// Arrays and objects may be nested this deep.
    static constexpr std::size_t maxDepth = 512;

    /// Where and why a text is not JSON.
    struct Fault {
        std::size_t offset;  ///< in bytes
        KeyPath path;        ///< the value it happened in
        std::string_view reason;
    };

    /// Nothing when the text is one value with nothing but white space around it.
    static std::optional<Fault> findFault(std::string_view text);

    /// True when the text starts with a value and the ',' or '}' that ends a member. The value
    /// stands inside `depth` arrays and objects.
    static bool startsWithMemberValue(std::string_view text, std::size_t depth);

    /// The string that the text starts with, between its quotes and with its escapes; nothing when
    /// there is none or it is malformed.
    static std::optional<std::string_view> leadingString(std::string_view text);

    /// The number that the text starts with; nothing when there is none.
    static std::optional<std::string_view> leadingNumber(std::string_view text);

    /// A string as leadingString() returns it, with its escapes replaced.
    static std::string unescape(std::string_view string);
};

}  // namespace marlevo
