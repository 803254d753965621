#include "graphics/Blend.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

// Compiles this file once per instruction set. Precedes every include of Highway.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "graphics/Blend.cpp"
#include <hwy/foreach_target.h>
// Follows foreach_target.h, which sets the instruction set.
#include "graphics/BlendVector-inl.h"

HWY_BEFORE_NAMESPACE();
namespace marlevo::HWY_NAMESPACE {

void blendCovered(std::uint8_t* HWY_RESTRICT pixels, const std::uint8_t* HWY_RESTRICT coverage,
                  std::size_t count, PackedColor color) {
    const Pixels d;
    const hn::Rebind<std::uint8_t, Pixels> dCoverage;
    const ColorBlender<> blender(color);
    const auto blend = [&](const std::uint8_t* from, std::size_t at) {
        blender.blend(hn::PromoteTo(d, hn::LoadU(dCoverage, from)), pixels + 4 * at, count - at);
    };
    std::size_t done = 0;
    for (; done + hn::Lanes(d) <= count; done += hn::Lanes(d))
        blend(coverage + done, done);
    if (done == count) return;
    std::array<std::uint8_t, maxPixelsPerVector> rest{};
    std::memcpy(rest.data(), coverage + done, count - done);
    blend(rest.data(), done);
}

void blendFully(std::uint8_t* pixels, std::size_t count, PackedColor color) {
    const Pixels d;
    const ColorBlender<> blender(color);
    for (std::size_t at = 0; at < count; at += hn::Lanes(d))
        blender.blend(hn::Set(d, 255), pixels + 4 * at, count - at);
}

}  // namespace marlevo::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace marlevo {

HWY_EXPORT(blendCovered);
HWY_EXPORT(blendFully);

namespace {

double clampedToUnit(double value) { return value > 0 ? std::min(value, 1.0) : 0; }

std::uint8_t toByte(double unit) { return static_cast<std::uint8_t>(std::lround(unit * 255)); }

/// For an opaque colour, which replaces the pixels.
void fillPixels(std::uint8_t* pixels, std::size_t count, PackedColor color) {
    for (std::size_t i = 0; i < count; ++i)
        std::memcpy(pixels + 4 * i, color.bytes.data(), color.bytes.size());
}

}  // namespace

PackedColor packColor(const Color& color, double alpha, PixelOrder order) {
    const double opacity = clampedToUnit(color.alpha) * clampedToUnit(alpha);
    const std::uint8_t a = toByte(opacity);
    const std::uint8_t r = toByte(clampedToUnit(color.red) * opacity);
    const std::uint8_t g = toByte(clampedToUnit(color.green) * opacity);
    const std::uint8_t b = toByte(clampedToUnit(color.blue) * opacity);
    switch (order) {
    case PixelOrder::argb:
        return {{a, r, g, b}, a};
    case PixelOrder::bgra:
        break;
    }
    return {{b, g, r, a}, a};
}

void blendSpan(std::uint8_t* pixels, const std::uint8_t* coverage, std::size_t count,
               PackedColor color) {
    HWY_DYNAMIC_DISPATCH(blendCovered)(pixels, coverage, count, color);
}

void blendSolid(std::uint8_t* pixels, std::size_t count, PackedColor color) {
    if (color.alpha == 0 || count == 0) return;
    if (color.alpha == 255) {
        fillPixels(pixels, count, color);
    } else {
        HWY_DYNAMIC_DISPATCH(blendFully)(pixels, count, color);
    }
}

}  // namespace marlevo
#endif
