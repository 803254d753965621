#include "io/ColorProfile.h"

#include "io/ByteReader.h"

#include <array>
#include <cmath>
#include <optional>
#include <string_view>

namespace marlevo {

namespace {

double fixedPoint(const ByteReader& reader, std::size_t at) {
    return static_cast<std::int32_t>(reader.word(at)) / 65536.0;
}

/// The data of the tag with the signature, including its type.
std::optional<ByteReader> findTag(const ByteReader& profile, std::string_view signature) {
    constexpr std::size_t header = 128;
    constexpr std::size_t entrySize = 12;
    constexpr std::uint32_t mostTags = 100;
    const std::uint32_t count = profile.word(header);
    if (count > mostTags) return std::nullopt;
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::size_t entry = header + 4 + entrySize * i;
        if (profile.hasText(entry, signature)) return profile.from(profile.word(entry + 4));
    }
    return std::nullopt;
}

/// The tone curve's value at `x`. Nothing for a kind of curve that no sRGB profile has.
std::optional<double> curveValue(const ByteReader& curve, double x) {
    constexpr std::size_t values = 12;
    if (curve.hasText(0, "curv")) {
        const std::uint32_t count = curve.word(8);
        if (count == 0) return x;
        if (count == 1) return std::pow(x, curve.half(values) / 256.0);
        const auto index = static_cast<std::size_t>(std::lround(x * (count - 1)));
        return curve.half(values + 2 * index) / 65535.0;
    }
    if (curve.hasText(0, "para")) {
        const std::uint16_t kind = curve.half(8);
        const double gamma = fixedPoint(curve, values);
        if (kind == 0) return std::pow(x, gamma);
        if (kind != 3) return std::nullopt;
        const double a = fixedPoint(curve, values + 4);
        const double b = fixedPoint(curve, values + 8);
        const double c = fixedPoint(curve, values + 12);
        const double d = fixedPoint(curve, values + 16);
        return x >= d ? std::pow(a * x + b, gamma) : c * x;
    }
    return std::nullopt;
}

bool isNear(double value, double expected) { return std::abs(value - expected) < 0.002; }

struct Primary {
    std::string_view colorTag;
    std::string_view curveTag;
    std::array<double, 3> xyz;  ///< adapted to illuminant D50, as in profiles
};

constexpr std::array primaries{
    Primary{"rXYZ", "rTRC", {0.4361, 0.2225, 0.0139}},
    Primary{"gXYZ", "gTRC", {0.3851, 0.7169, 0.0971}},
    Primary{"bXYZ", "bTRC", {0.1431, 0.0606, 0.7141}},
};

bool isSRGBPrimary(const ByteReader& profile, const Primary& primary) {
    const auto color = findTag(profile, primary.colorTag);
    const auto curve = findTag(profile, primary.curveTag);
    if (!color || !curve) return false;
    for (std::size_t i = 0; i < primary.xyz.size(); ++i)
        if (!isNear(fixedPoint(*color, 8 + 4 * i), primary.xyz[i])) return false;
    const auto dark = curveValue(*curve, 0.2);
    const auto middle = curveValue(*curve, 0.5);
    return dark && middle && isNear(*dark, 0.0331) && isNear(*middle, 0.2140);
}

}  // namespace

bool isSRGBProfile(std::span<const std::uint8_t> bytes) {
    const ByteReader profile(bytes);
    // The tables of a profile replace its primaries.
    if (!profile.hasText(16, "RGB XYZ ") || findTag(profile, "A2B0")) return false;
    for (const Primary& primary : primaries)
        if (!isSRGBPrimary(profile, primary)) return false;
    return true;
}

}  // namespace marlevo
