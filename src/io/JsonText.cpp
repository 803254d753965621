#include "io/JsonText.h"

#include "io/Base64.h"
#include "io/NumberText.h"

#include <cmath>

namespace marlevo {
namespace {

constexpr std::size_t separatorLength = 2;

char* writeSeparator(char* to) {
    to[0] = ',';
    to[1] = ' ';
    return to + separatorLength;
}

bool needsEscape(char c) { return static_cast<unsigned char>(c) < 0x20 || c == '"' || c == '\\'; }

}  // namespace

void JsonText::newLine(std::size_t depth) {
    text_.append("\n");
    for (std::size_t i = 0; i < depth; ++i)
        text_.append("  ");
}

void JsonText::member(std::string_view key, std::size_t depth) {
    newLine(depth);
    value(key);
    text_.append(" : ");
}

void JsonText::value(std::int64_t number) { text_.append(std::to_string(number)); }

void JsonText::value(double number) { text_.advanceTo(write(number, text_.room(maxNumberLength))); }

void JsonText::value(std::string_view string) {
    text_.append("\"");
    while (!string.empty()) {
        const auto special = std::find_if(string.begin(), string.end(), needsEscape);
        const auto plain = static_cast<std::size_t>(special - string.begin());
        text_.append(string.substr(0, plain));
        string.remove_prefix(plain);
        if (string.empty()) break;
        escape(string.front());
        string.remove_prefix(1);
    }
    text_.append("\"");
}

void JsonText::value(const PointList& points) {
    text_.append("[ ");
    bool isFirst = true;
    for (const Point& point : points) {
        char* to = text_.room(2 * (maxNumberLength + separatorLength));
        if (!isFirst) to = writeSeparator(to);
        to = writeSeparator(write(point.x, to));
        text_.advanceTo(write(point.y, to));
        isFirst = false;
    }
    text_.append(isFirst ? "]" : " ]");
}

void JsonText::base64(std::span<const std::uint8_t> bytes) {
    text_.advanceTo(encodeBase64(bytes, text_.room(base64Length(bytes.size()))));
}

char* JsonText::write(double number, char* to) {
    isFinite_ = isFinite_ && std::isfinite(number);
    return writeNumber(number, to);
}

void JsonText::escape(char c) {
    constexpr std::string_view hex = "0123456789ABCDEF";
    switch (c) {
    case '"':
        return text_.append("\\\"");
    case '\\':
        return text_.append("\\\\");
    case '\n':
        return text_.append("\\n");
    case '\r':
        return text_.append("\\r");
    case '\t':
        return text_.append("\\t");
    default:
        text_.append("\\u00");
        text_.append(hex.substr(static_cast<std::size_t>(c) >> 4, 1));
        text_.append(hex.substr(static_cast<std::size_t>(c) & 15, 1));
    }
}

}  // namespace marlevo
