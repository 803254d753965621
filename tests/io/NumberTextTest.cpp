#include "io/NumberText.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

using namespace marlevo;

namespace {

std::string textOf(double number) {
    std::array<char, maxNumberLength> text{};
    return {text.data(), writeNumber(number, text.data())};
}

/// The significant digits of a number's text, without zeros at either end.
std::string digitsOf(std::string_view text) {
    std::string digits;
    for (const char c : text.substr(0, text.find('e')))
        if (c >= '0' && c <= '9' && !(digits.empty() && c == '0')) digits += c;
    digits.erase(digits.find_last_not_of('0') + 1);
    return digits;
}

std::string shortestDigitsOf(double number) {
    std::array<char, 64> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number,
                                   std::chars_format::scientific);
    return digitsOf({text.data(), end.ptr});
}

TEST(NumberText, writesTheShortestPlainText) {
    const std::pair<double, const char*> cases[] = {
        {0, "0"},
        {-0.0, "-0"},
        {1, "1"},
        {-1280, "-1280"},
        {100000, "100000"},
        {9007199254740991, "9007199254740991"},
        {0.1, "0.1"},
        {0.3, "0.3"},
        {0.1 + 0.2, "0.30000000000000004"},
        {-300.5, "-300.5"},
        {1.0 / 3, "0.3333333333333333"},
        {0.001, "0.001"},
        {5e-324, "5e-324"},
        {1e22, "1e+22"},
        {123456789012345678901.0, "123456789012345683968"},
        // Halfway between two shortest texts: the one with the even last digit.
        {1125899906842624.25, "1125899906842624.2"},
        {1125899906842624.75, "1125899906842624.8"},
        {std::numeric_limits<double>::max(), "1.7976931348623157e+308"},
    };
    for (const auto& [number, text] : cases)
        EXPECT_EQ(textOf(number), text);
}

TEST(NumberText, hasTheShortestDigitsThatReadBack) {
    std::mt19937_64 random(3);
    const auto makeNumber = [&](int kind) {
        const auto bits = static_cast<double>(random() >> 11);  // 53 of them
        switch (kind) {
        case 0:
            return std::bit_cast<double>(static_cast<std::uint64_t>(random()));
        case 1:
            return std::ldexp(bits, -static_cast<int>(random() % 70));
        case 2:
            return std::round(bits / 0x1p53 * 1e6) / 1e3;
        case 3:
            return std::nextafter(std::round(bits / 0x1p53 * 1e5) / 1e2,
                                  random() % 2 == 0 ? 0 : 1e9);
        default: {
            // Powers of two and their neighbours, where the gaps between doubles change.
            const double power = std::ldexp(1.0, static_cast<int>(random() % 80) - 20);
            return std::nextafter(power, power * static_cast<double>(random() % 3));
        }
        }
    };
    for (int i = 0; i < 500'000; ++i) {
        const double number = makeNumber(i % 5);
        if (!std::isfinite(number)) continue;
        const std::string text = textOf(number);
        double back = 0;
        const auto end = std::from_chars(text.data(), text.data() + text.size(), back).ptr;
        ASSERT_EQ(end, text.data() + text.size()) << text;
        ASSERT_EQ(std::bit_cast<std::uint64_t>(back), std::bit_cast<std::uint64_t>(number)) << text;
        const bool isFraction = std::trunc(number) != number;
        if (isFraction) {
            ASSERT_EQ(digitsOf(text), shortestDigitsOf(number)) << text;
        }
    }
}

}  // namespace
