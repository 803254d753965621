// Blending of vectors of pixels with the bytes of blendByte; included once for each vector
// instruction set, hence the guard.

#include "graphics/Blend.h"

#include <hwy/highway.h>

#include <cstring>

#if defined(MARLEVO_GRAPHICS_BLEND_VECTOR_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef MARLEVO_GRAPHICS_BLEND_VECTOR_INL_H
#undef MARLEVO_GRAPHICS_BLEND_VECTOR_INL_H
#else
#define MARLEVO_GRAPHICS_BLEND_VECTOR_INL_H
#endif

#if HWY_TARGET != HWY_SCALAR
HWY_BEFORE_NAMESPACE();
namespace marlevo::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

/// A pixel's bytes spread over 16-bit lanes: `even` holds bytes 0 and 2 of each pixel, `odd` 1 and
/// 3. Products of two bytes fit a lane.
template <class V16>
struct UnpackedPixels {
    V16 even;
    V16 odd;
};

template <class D32, class D16 = hn::Repartition<std::uint16_t, D32>>
HWY_INLINE UnpackedPixels<hn::VFromD<D16>> unpackBytes(D32 d32, hn::VFromD<D32> pixels) {
    const D16 d16;
    const auto low = hn::Set(d32, 0x00FF00FFU);
    return {hn::BitCast(d16, hn::And(pixels, low)),
            hn::BitCast(d16, hn::And(hn::ShiftRight<8>(pixels), low))};
}

/// marlevo::mulDiv255 in each lane.
template <class D16, class V16>
HWY_INLINE V16 mulDiv255(D16 d16, V16 a, V16 b) {
    const V16 biased = hn::Add(hn::Mul(a, b), hn::Set(d16, std::uint16_t{128}));
    return hn::MulHigh(biased, hn::Set(d16, std::uint16_t{257}));
}

template <class D32>
HWY_INLINE hn::VFromD<D32> loadPixelOfColor(D32 d32, PackedColor color) {
    std::uint32_t pixel = 0;
    std::memcpy(&pixel, color.bytes.data(), sizeof pixel);
    return hn::Set(d32, pixel);
}

/// One pixel a 32-bit lane. `coverage` lanes are 0 … 255.
template <class D32, class D16 = hn::Repartition<std::uint16_t, D32>>
HWY_INLINE hn::VFromD<D32> blendPixels(D32 d32, hn::VFromD<D32> pixels, hn::VFromD<D32> coverage,
                                       UnpackedPixels<hn::VFromD<D16>> color,
                                       hn::VFromD<D16> alpha) {
    const D16 d16;
    const auto cover = hn::BitCast(d16, hn::Or(coverage, hn::ShiftLeft<16>(coverage)));
    const auto keep = hn::Sub(hn::Set(d16, std::uint16_t{255}), mulDiv255(d16, alpha, cover));
    const auto below = unpackBytes(d32, pixels);
    const auto even = hn::Add(mulDiv255(d16, color.even, cover), mulDiv255(d16, below.even, keep));
    const auto odd = hn::Add(mulDiv255(d16, color.odd, cover), mulDiv255(d16, below.odd, keep));
    return hn::Or(hn::BitCast(d32, even), hn::ShiftLeft<8>(hn::BitCast(d32, odd)));
}

}  // namespace marlevo::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();
#endif

#endif
