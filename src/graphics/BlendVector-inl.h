// Blends vectors of pixels with the bytes of blendByte(). Included once per instruction set, hence
// the guard.

#include "graphics/Blend.h"

#include <hwy/highway.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(MARLEVO_GRAPHICS_BLEND_VECTOR_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef MARLEVO_GRAPHICS_BLEND_VECTOR_INL_H
#undef MARLEVO_GRAPHICS_BLEND_VECTOR_INL_H
#else
#define MARLEVO_GRAPHICS_BLEND_VECTOR_INL_H
#endif

HWY_BEFORE_NAMESPACE();
namespace marlevo::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

/// The widest vectors of pixels, one per lane.
using Pixels = hn::CappedTag<std::uint32_t, maxPixelsPerVector>;

#if HWY_TARGET != HWY_SCALAR

/// The bytes of pixels in 16-bit lanes, which hold products of two bytes: `even` has bytes 0 and 2
/// of each pixel, `odd` has 1 and 3.
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

/// Replaces a vector of pixels by `source` + pixels · `keep` / 255. No byte overflows if the source
/// is premultiplied and `keep` is 255 − its alpha.
template <class D32, class V16>
HWY_INLINE void compositeOver(D32 d32, std::uint8_t* pixels, UnpackedPixels<V16> source, V16 keep) {
    const hn::Repartition<std::uint16_t, D32> d16;
    const hn::Repartition<std::uint8_t, D32> dBytes;
    const auto below = unpackBytes(d32, hn::BitCast(d32, hn::LoadU(dBytes, pixels)));
    const auto even = hn::Add(source.even, mulDiv255(d16, below.even, keep));
    const auto odd = hn::Add(source.odd, mulDiv255(d16, below.odd, keep));
    const auto blended = hn::Or(hn::BitCast(d32, even), hn::ShiftLeft<8>(hn::BitCast(d32, odd)));
    hn::StoreU(hn::BitCast(dBytes, blended), dBytes, pixels);
}

/// As compositeOver(), for no more than the first `count` pixels of the vector.
template <class D32, class V16>
HWY_INLINE void compositeFirst(D32 d32, std::uint8_t* pixels, std::size_t count,
                               UnpackedPixels<V16> source, V16 keep) {
    if (count >= hn::Lanes(d32)) {
        compositeOver(d32, pixels, source, keep);
        return;
    }
    std::array<std::uint8_t, 4 * maxPixelsPerVector> part{};
    std::memcpy(part.data(), pixels, 4 * count);
    compositeOver(d32, part.data(), source, keep);
    std::memcpy(pixels, part.data(), 4 * count);
}

/// Blends one colour onto vectors of pixels.
template <class D32 = Pixels>
class ColorBlender {
public:
    explicit ColorBlender(PackedColor color)
        : color_(unpackBytes(D32(), pixelOf(color))), alpha_(hn::Set(D16(), color.alpha)) {}

    /// Blends no more than the first `count` pixels of a vector. `coverage` lanes are 0 … 255.
    HWY_INLINE void blend(hn::VFromD<D32> coverage, std::uint8_t* pixels, std::size_t count) const {
        const D16 d16;
        const auto cover = hn::BitCast(d16, hn::Or(coverage, hn::ShiftLeft<16>(coverage)));
        const auto keep = hn::Sub(hn::Set(d16, std::uint16_t{255}), mulDiv255(d16, alpha_, cover));
        compositeFirst(D32(), pixels, count,
                       UnpackedPixels<V16>{mulDiv255(d16, color_.even, cover),
                                           mulDiv255(d16, color_.odd, cover)},
                       keep);
    }

private:
    using D16 = hn::Repartition<std::uint16_t, D32>;
    using V16 = hn::VFromD<D16>;

    static hn::VFromD<D32> pixelOf(PackedColor color) {
        std::uint32_t pixel = 0;
        std::memcpy(&pixel, color.bytes.data(), sizeof pixel);
        return hn::Set(D32(), pixel);
    }

    UnpackedPixels<V16> color_;
    V16 alpha_;
};

#else

/// Vectors of a single pixel.
template <class D32 = Pixels>
class ColorBlender {
public:
    explicit ColorBlender(PackedColor color) : color_(color) {}

    void blend(hn::VFromD<D32> coverage, std::uint8_t* pixel, std::size_t /*count*/) const {
        blendPixel(pixel, color_, static_cast<std::uint8_t>(hn::GetLane(coverage)));
    }

private:
    PackedColor color_;
};

#endif

}  // namespace marlevo::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif
