#include "io/Base64.h"

#include <array>
#include <cstring>

namespace marlevo {
namespace {

constexpr std::string_view alphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// The two characters of each 12-bit group. Pairs need half as many look-ups as single characters.
constexpr auto pairs = [] {
    std::array<std::array<char, 2>, 4096> table{};
    for (std::size_t bits = 0; bits < table.size(); ++bits)
        table[bits] = {alphabet[bits >> 6], alphabet[bits & 63]};
    return table;
}();

constexpr std::uint32_t invalid = 1U << 24;

/// For each place in a group of four, the bits of a character within the 24 bits of the group. A
/// group with an `invalid` character has that bit.
constexpr auto places = [] {
    std::array<std::array<std::uint32_t, 256>, 4> table{};
    for (auto& place : table)
        place.fill(invalid);
    for (std::size_t place = 0; place < 4; ++place)
        for (std::uint32_t value = 0; value < 64; ++value)
            table[place][static_cast<unsigned char>(alphabet[value])] = value << (18 - 6 * place);
    return table;
}();

std::uint32_t groupBits(const char* group) {
    const auto* four = reinterpret_cast<const unsigned char*>(group);
    return places[0][four[0]] | places[1][four[1]] | places[2][four[2]] | places[3][four[3]];
}

}  // namespace

char* encodeBase64(std::span<const std::uint8_t> bytes, char* to) {
    const std::uint8_t* from = bytes.data();
    for (std::size_t groups = bytes.size() / 3; groups > 0; --groups, from += 3, to += 4) {
        const std::uint32_t bits = from[0] << 16 | from[1] << 8 | from[2];
        std::memcpy(to, pairs[bits >> 12].data(), 2);
        std::memcpy(to + 2, pairs[bits & 4095].data(), 2);
    }
    const std::size_t rest = bytes.size() % 3;
    if (rest == 0) return to;
    const std::uint32_t bits = from[0] << 16 | (rest == 2 ? from[1] << 8 : 0);
    std::memcpy(to, pairs[bits >> 12].data(), 2);
    std::memcpy(to + 2, pairs[bits & 4095].data(), 2);
    if (rest == 1) to[2] = '=';
    to[3] = '=';
    return to + 4;
}

std::optional<std::vector<std::uint8_t>> decodeBase64(std::string_view text) {
    if (text.size() % 4 != 0) return std::nullopt;
    if (text.empty()) return std::vector<std::uint8_t>();

    const std::size_t padding = text.ends_with("==") ? 2 : text.ends_with('=') ? 1 : 0;
    std::vector<std::uint8_t> bytes(text.size() / 4 * 3 - padding);

    // All groups but the last are whole. Invalid bits are collected and tested once.
    const char* from = text.data();
    std::uint8_t* to = bytes.data();
    std::uint32_t seen = 0;
    for (std::size_t groups = text.size() / 4 - 1; groups > 0; --groups, from += 4, to += 3) {
        const std::uint32_t bits = groupBits(from);
        seen |= bits;
        to[0] = static_cast<std::uint8_t>(bits >> 16);
        to[1] = static_cast<std::uint8_t>(bits >> 8);
        to[2] = static_cast<std::uint8_t>(bits);
    }

    std::array<char, 4> last{};
    std::memcpy(last.data(), from, 4);
    std::fill(last.end() - padding, last.end(), alphabet[0]);
    const std::uint32_t bits = groupBits(last.data());
    const std::uint32_t unused = padding == 2 ? 0xFFFF : padding == 1 ? 0xFF : 0;
    if (((seen | bits) & invalid) != 0 || (bits & unused) != 0) return std::nullopt;
    for (std::size_t i = 0; i < 3 - padding; ++i)
        to[i] = static_cast<std::uint8_t>(bits >> (16 - 8 * i));
    return bytes;
}

}  // namespace marlevo
