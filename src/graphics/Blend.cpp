#include "graphics/Blend.h"

#include <algorithm>
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

// A span is blended in the widest vectors, its rest in short ones.
using WideVector = hn::ScalableTag<std::uint32_t>;
using ShortVector = hn::CappedTag<std::uint32_t, 4>;

/// Blends as many whole vectors of `d32` as fit and returns the number of pixels done.
template <class D32>
HWY_INLINE std::size_t blendCovered(D32 d32, std::uint8_t* HWY_RESTRICT pixels,
                                    const std::uint8_t* HWY_RESTRICT coverage, std::size_t count,
                                    PackedColor color) {
    const hn::Rebind<std::uint8_t, D32> dCoverage;
    const ColorBlender<D32> blender(color);
    const std::size_t lanes = hn::Lanes(d32);
    std::size_t done = 0;
    for (; done + lanes <= count; done += lanes)
        blender.blend(hn::PromoteTo(d32, hn::LoadU(dCoverage, coverage + done)), pixels + 4 * done);
    return done;
}

template <class D32>
HWY_INLINE std::size_t blendFully(D32 d32, std::uint8_t* pixels, std::size_t count,
                                  PackedColor color) {
    const ColorBlender<D32> blender(color);
    const std::size_t lanes = hn::Lanes(d32);
    std::size_t done = 0;
    for (; done + lanes <= count; done += lanes)
        blender.blendFully(pixels + 4 * done);
    return done;
}

std::size_t blendCoveredVectors(std::uint8_t* pixels, const std::uint8_t* coverage,
                                std::size_t count, PackedColor color) {
    const std::size_t done = blendCovered(WideVector(), pixels, coverage, count, color);
    return done +
           blendCovered(ShortVector(), pixels + 4 * done, coverage + done, count - done, color);
}

std::size_t blendSolidVectors(std::uint8_t* pixels, std::size_t count, PackedColor color) {
    const std::size_t done = blendFully(WideVector(), pixels, count, color);
    return done + blendFully(ShortVector(), pixels + 4 * done, count - done, color);
}

}  // namespace marlevo::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace marlevo {

HWY_EXPORT(blendCoveredVectors);
HWY_EXPORT(blendSolidVectors);

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
    if (color.alpha == 0) return;
    std::size_t i = HWY_DYNAMIC_DISPATCH(blendCoveredVectors)(pixels, coverage, count, color);
    for (; i < count; ++i)
        blendPixel(pixels + 4 * i, color, coverage[i]);
}

void blendSolid(std::uint8_t* pixels, std::size_t count, PackedColor color) {
    if (color.alpha == 0) return;
    if (color.alpha == 255) {
        fillPixels(pixels, count, color);
        return;
    }
    std::size_t i = HWY_DYNAMIC_DISPATCH(blendSolidVectors)(pixels, count, color);
    for (; i < count; ++i)
        blendPixel(pixels + 4 * i, color, 255);
}

}  // namespace marlevo
#endif
