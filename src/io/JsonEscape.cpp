#include "io/JsonEscape.h"

#include <algorithm>
#include <cstdint>

namespace marlevo {
namespace {

int hexValue(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

void appendUtf8(std::string& text, std::uint32_t code) {
    const auto add = [&](std::uint32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (code < 0x80) {
        add(code);
    } else if (code < 0x800) {
        add(0xC0 | code >> 6);
        add(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        add(0xE0 | code >> 12);
        add(0x80 | (code >> 6 & 0x3F));
        add(0x80 | (code & 0x3F));
    } else {
        add(0xF0 | code >> 18);
        add(0x80 | (code >> 12 & 0x3F));
        add(0x80 | (code >> 6 & 0x3F));
        add(0x80 | (code & 0x3F));
    }
}

}  // namespace

int JsonEscape::codeUnit(std::string_view text) {
    if (text.size() < 4) return -1;
    int unit = 0;
    for (const char c : text.substr(0, 4)) {
        const int value = hexValue(c);
        if (value < 0) return -1;
        unit = unit << 4 | value;
    }
    return unit;
}

std::string JsonEscape::replaceAll(std::string_view string) {
    std::string text;
    text.reserve(string.size());
    while (!string.empty()) {
        const std::size_t plain = std::min(string.find('\\'), string.size());
        text.append(string.substr(0, plain));
        string.remove_prefix(plain);
        if (string.empty()) break;

        const char kind = string[1];
        string.remove_prefix(2);
        switch (kind) {
        case 'b':
            text.push_back('\b');
            break;
        case 'f':
            text.push_back('\f');
            break;
        case 'n':
            text.push_back('\n');
            break;
        case 'r':
            text.push_back('\r');
            break;
        case 't':
            text.push_back('\t');
            break;
        case 'u': {
            auto code = static_cast<std::uint32_t>(codeUnit(string));
            string.remove_prefix(4);
            if (isHighSurrogate(static_cast<int>(code))) {
                const auto low = static_cast<std::uint32_t>(codeUnit(string.substr(2)));
                string.remove_prefix(6);
                code = 0x10000 + ((code - 0xD800) << 10) + (low - 0xDC00);
            }
            appendUtf8(text, code);
            break;
        }
        default:
            text.push_back(kind);  // a quote, a slash or a backslash
        }
    }
    return text;
}

}  // namespace marlevo
