#include "io/NumberText.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace marlevo {
namespace {

__extension__ using uint128 = unsigned __int128;

constexpr auto powersOfTen = [] {
    std::array<std::uint64_t, 20> powers{};
    std::uint64_t power = 1;
    for (std::uint64_t& entry : powers) {
        entry = power;
        power *= 10;
    }
    return powers;
}();

constexpr auto digitPairs = [] {
    std::array<std::array<char, 2>, 100> pairs{};
    for (std::size_t i = 0; i < pairs.size(); ++i)
        pairs[i] = {static_cast<char>('0' + i / 10), static_cast<char>('0' + i % 10)};
    return pairs;
}();

/// digits / 10^decimals
struct Decimal {
    std::uint64_t digits;
    std::size_t decimals;
};

/// The decimal with the fewest digits that is nearer to `number` than to any other double.
///
/// The search of R. Giulietti, "The Schubfach way to render doubles" (2020): at the scale where
/// neighbouring doubles are between one and ten units apart, one of at most four candidates is the
/// answer. For numbers from 2^-10 to 2^53 with a fraction, the only ones allowed here, the scaling
/// is exact in 128 bits, so the paper's tables and its proofs about their rounding are not needed.
///
/// No candidate is halfway between two doubles: such a decimal has shift + 1 decimals, and the
/// candidates have at most ceil(0.302 shift + 0.125) of them.
Decimal shortestDecimal(double number) {
    constexpr int fractionBits = 52;
    const auto bits = std::bit_cast<std::uint64_t>(number);
    const std::uint64_t hiddenBit = std::uint64_t{1} << fractionBits;
    const std::uint64_t fraction = bits & (hiddenBit - 1);
    const std::uint64_t significand = fraction | hiddenBit;
    // number = significand / 2^shift, with shift from 1 to 62.
    const int shift = 1075 - static_cast<int>(bits >> fractionBits);

    // Below a power of two the distance to the next double is only half as large.
    const bool isPowerOfTwo = fraction == 0;
    // ceil(log10(2^shift)), or of 4/3 of it; the constants are 2^20 times the logarithms.
    const auto decimals =
        static_cast<std::size_t>((shift * 315653 + (isPowerOfTwo ? 131008 : 0) + 1048575) >> 20);

    // Values in quarters of the last digit. The lowest bit is set when there is a remainder.
    const auto quarters = [shift](uint128 product) {
        const std::uint64_t remainder = static_cast<std::uint64_t>(product) << (64 - shift);
        return static_cast<std::uint64_t>(product >> shift) | (remainder != 0 ? 1 : 0);
    };
    const uint128 scale = powersOfTen[decimals];
    const uint128 product = uint128{4} * significand * scale;
    const std::uint64_t value = quarters(product);
    const std::uint64_t low = quarters(product - (isPowerOfTwo ? scale : 2 * scale));
    const std::uint64_t high = quarters(product + 2 * scale);

    const std::uint64_t below = value / 4;
    const std::uint64_t tensBelow = below / 10;
    const bool lowerTenFits = low <= 40 * tensBelow;
    const bool upperTenFits = 40 * (tensBelow + 1) <= high;
    const std::uint64_t ten = 10 * (tensBelow + (upperTenFits ? 1 : 0));

    const bool lowerFits = low <= 4 * below;
    const bool upperFits = 4 * (below + 1) <= high;
    const std::uint64_t middle = 4 * below + 2;
    const bool isUpperNearer = value > middle || (value == middle && (below & 1) != 0);
    const bool roundUp = lowerFits != upperFits ? upperFits : isUpperNearer;

    // Written for conditional moves: a branch here is unpredictable.
    return {lowerTenFits != upperTenFits ? ten : below + (roundUp ? 1 : 0), decimals};
}

char* writeWhole(std::uint64_t number, char* to) {
    return std::to_chars(to, to + maxNumberLength, number).ptr;
}

void writeEightDigits(std::uint32_t number, char* to) {
    const std::uint32_t upper = number / 10'000;
    const std::uint32_t lower = number % 10'000;
    std::memcpy(to, digitPairs[upper / 100].data(), 2);
    std::memcpy(to + 2, digitPairs[upper % 100].data(), 2);
    std::memcpy(to + 4, digitPairs[lower / 100].data(), 2);
    std::memcpy(to + 6, digitPairs[lower % 100].data(), 2);
}

/// Writes a point and fraction / 10^decimals without trailing zeros, and returns the end. May
/// overwrite characters behind the end.
char* writeFraction(std::uint64_t fraction, std::size_t decimals, char* to) {
    constexpr std::uint32_t group = 100'000'000;
    *to++ = '.';
    for (; decimals > 16; --decimals) {
        *to++ = static_cast<char>('0' + fraction / powersOfTen[decimals - 1]);
        fraction %= powersOfTen[decimals - 1];
    }
    fraction *= powersOfTen[16 - decimals];  // two groups of eight digits, aligned to the left
    writeEightDigits(static_cast<std::uint32_t>(fraction / group), to);
    writeEightDigits(static_cast<std::uint32_t>(fraction % group), to + 8);
    to += decimals;
    to -= to[-1] == '0' ? 1 : 0;  // no branch: one zero is common, more are rare
    while (to[-1] == '0')
        --to;
    return to;
}

}  // namespace

char* writeNumber(double number, char* to) {
    if (std::signbit(number)) *to++ = '-';
    const double magnitude = std::abs(number);
    if (magnitude < 0x1p53) {
        const auto whole = static_cast<std::uint64_t>(magnitude);
        if (static_cast<double>(whole) == magnitude) return writeWhole(whole, to);
        if (magnitude >= 0x1p-10) {
            // Whole numbers are doubles, so the decimal is between the same two as the number.
            const Decimal decimal = shortestDecimal(magnitude);
            const std::uint64_t fraction = decimal.digits - whole * powersOfTen[decimal.decimals];
            return writeFraction(fraction, decimal.decimals, writeWhole(whole, to));
        }
    }
    return std::to_chars(to, to + maxNumberLength, magnitude).ptr;
}

std::optional<double> parseNumber(std::string_view text) {
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
