#include "io/JsonSyntax.h"

#include "io/JsonEscape.h"

#include <array>

namespace marlevo {
namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// The length of the UTF-8 sequence at the start of the text, which has more than one byte. 0 if it
/// is malformed, overlong, a surrogate or beyond U+10FFFF.
std::size_t utf8Length(std::string_view text) {
    const auto byte = [&](std::size_t i) {
        return i < text.size() ? static_cast<unsigned char>(text[i]) : 0;
    };
    const auto continues = [&](std::size_t i) { return (byte(i) & 0xC0) == 0x80; };
    const int lead = byte(0);
    const int next = byte(1);
    if (lead >= 0xC2 && lead <= 0xDF) return continues(1) ? 2 : 0;
    if (lead >= 0xE0 && lead <= 0xEF) {
        const int lowest = lead == 0xE0 ? 0xA0 : 0x80;
        const int highest = lead == 0xED ? 0x9F : 0xBF;
        return next >= lowest && next <= highest && continues(2) ? 3 : 0;
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        const int lowest = lead == 0xF0 ? 0x90 : 0x80;
        const int highest = lead == 0xF4 ? 0x8F : 0xBF;
        return next >= lowest && next <= highest && continues(2) && continues(3) ? 4 : 0;
    }
    return 0;
}

/// Printable ASCII that needs no escape.
constexpr auto isPlain = [] {
    std::array<bool, 256> plain{};
    for (std::size_t c = 0x20; c < 0x80; ++c)
        plain[c] = c != '"' && c != '\\';
    return plain;
}();

/// A recursive-descent parser. Each function starts at the element of its name, returns whether the
/// element is well-formed, and leaves the position behind the element or at the fault.
class Scanner {
public:
    explicit Scanner(std::string_view text) : text_(text) {}

    bool document() {
        skipSpace();
        if (atEnd()) return fail("the text is empty");
        if (!value(0)) return false;
        skipSpace();
        return atEnd() || fail("something follows the document's end");
    }

    bool value(std::size_t depth) {
        if (atEnd()) return fail("the text ends too early");
        switch (text_[position_]) {
        case '{':
            return object(depth);
        case '[':
            return array(depth);
        case '"':
            return string();
        case 't':
            return literal("true");
        case 'f':
            return literal("false");
        case 'n':
            return literal("null");
        default:
            return number();
        }
    }

    bool memberValue(std::size_t depth) {
        if (!value(depth)) return false;
        skipSpace();
        return take(',') || take('}');
    }

    bool string() {
        if (!take('"')) return fail("a string was expected");
        for (;;) {
            while (!atEnd() && isPlain[static_cast<unsigned char>(text_[position_])])
                ++position_;
            if (atEnd()) return fail("the text ends within a string");
            if (take('"')) return true;
            if (text_[position_] == '\\') {
                if (!escape()) return false;
            } else if (static_cast<unsigned char>(text_[position_]) < 0x20) {
                return fail("a string contains a control character");
            } else {
                const std::size_t length = utf8Length(text_.substr(position_));
                if (length == 0) return fail("the text is not UTF-8");
                position_ += length;
            }
        }
    }

    bool number() {
        const bool isNegative = take('-');
        if (!take('0') && !digits())
            return fail(isNegative ? "a digit was expected" : "a value was expected");
        if (take('.') && !digits()) return fail("a digit was expected");
        if (take('e') || take('E')) {
            if (!take('+')) take('-');
            if (!digits()) return fail("a digit was expected");
        }
        return true;
    }

    std::size_t position() const { return position_; }
    JsonSyntax::Fault fault() const { return {position_, path_, reason_}; }

private:
    /// Maximum length of a fault's key path. Line and column give the place inside deeper values.
    static constexpr std::size_t stepsShown = 10;

    bool object(std::size_t depth) {
        if (depth == JsonSyntax::maxDepth) return fail("the values are nested too deep");
        ++position_;
        skipSpace();
        if (take('}')) return true;
        for (;;) {
            const std::size_t start = position_;
            if (!string()) return false;
            const std::string_view key = text_.substr(start + 1, position_ - start - 2);
            skipSpace();
            if (!take(':')) return fail("':' was expected");
            skipSpace();
            if (!value(depth + 1)) {
                if (depth < stepsShown) path_.prependKey(key);
                return false;
            }
            skipSpace();
            if (take('}')) return true;
            if (!take(',')) return fail("',' or '}' was expected");
            skipSpace();
        }
    }

    bool array(std::size_t depth) {
        if (depth == JsonSyntax::maxDepth) return fail("the values are nested too deep");
        ++position_;
        skipSpace();
        if (take(']')) return true;
        for (std::size_t index = 0;; ++index) {
            if (!value(depth + 1)) {
                if (depth < stepsShown) path_.prependIndex(index);
                return false;
            }
            skipSpace();
            if (take(']')) return true;
            if (!take(',')) return fail("',' or ']' was expected");
            skipSpace();
        }
    }

    bool escape() {
        constexpr std::string_view lone = "a string contains a lone surrogate";
        ++position_;
        if (atEnd()) return fail("the text ends within a string");
        if (text_[position_] != 'u') {
            constexpr std::string_view escapes = "\"\\/bfnrt";
            if (escapes.find(text_[position_]) == escapes.npos) return fail("an unknown escape");
            ++position_;
            return true;
        }
        const int unit = JsonEscape::codeUnit(text_.substr(position_ + 1));
        if (unit < 0) return fail("four hexadecimal digits were expected");
        if (JsonEscape::isLowSurrogate(unit)) return fail(lone);
        position_ += 5;
        if (!JsonEscape::isHighSurrogate(unit)) return true;
        const std::string_view rest = text_.substr(position_);
        if (!rest.starts_with("\\u") ||
            !JsonEscape::isLowSurrogate(JsonEscape::codeUnit(rest.substr(2))))
            return fail(lone);
        position_ += 6;
        return true;
    }

    bool literal(std::string_view word) {
        if (!text_.substr(position_).starts_with(word)) return fail("a value was expected");
        position_ += word.size();
        return true;
    }

    bool digits() {
        const std::size_t start = position_;
        while (!atEnd() && isDigit(text_[position_]))
            ++position_;
        return position_ > start;
    }

    void skipSpace() {
        while (!atEnd() && (text_[position_] == ' ' || text_[position_] == '\n' ||
                            text_[position_] == '\t' || text_[position_] == '\r'))
            ++position_;
    }

    bool take(char c) {
        if (atEnd() || text_[position_] != c) return false;
        ++position_;
        return true;
    }

    bool atEnd() const { return position_ == text_.size(); }

    bool fail(std::string_view reason) {
        reason_ = reason;
        return false;
    }

    std::string_view text_;
    std::size_t position_ = 0;
    KeyPath path_;
    std::string_view reason_;
};

}  // namespace

std::optional<JsonSyntax::Fault> JsonSyntax::findFault(std::string_view text) {
    Scanner scanner(text);
    if (scanner.document()) return std::nullopt;
    return scanner.fault();
}

bool JsonSyntax::startsWithMemberValue(std::string_view text, std::size_t depth) {
    return Scanner(text).memberValue(depth);
}

std::optional<std::string_view> JsonSyntax::leadingString(std::string_view text) {
    Scanner scanner(text);
    if (!scanner.string()) return std::nullopt;
    return text.substr(1, scanner.position() - 2);
}

std::optional<std::string_view> JsonSyntax::leadingNumber(std::string_view text) {
    Scanner scanner(text);
    if (!scanner.number()) return std::nullopt;
    return text.substr(0, scanner.position());
}

}  // namespace marlevo
