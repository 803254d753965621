#include "graphics/DrawImage.h"

#include "graphics/Blend.h"
#include "graphics/ResampleAxis.h"

#include <algorithm>
#include <cmath>
#include <vector>

// Compiles this file once per instruction set. Precedes every include of Highway.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "graphics/DrawImage.cpp"
#include <hwy/foreach_target.h>
// Follows foreach_target.h, which sets the instruction set.
#include "graphics/BlendVector-inl.h"

#ifndef MARLEVO_GRAPHICS_DRAW_IMAGE_ONCE
#define MARLEVO_GRAPHICS_DRAW_IMAGE_ONCE
namespace marlevo {
namespace {

/// Between the two passes a component has 7 fractional bits.
constexpr int columnShift = ResampleAxis::weightBits - 7;
constexpr int rowShift = ResampleAxis::weightBits + 7;

constexpr std::size_t channels = RasterImage::bytesPerPixel;

/// Lines of an image from the first needed column of the first weighted line on.
struct ImageLines {
    const std::uint8_t* bytes;
    std::size_t stride;
};

std::int16_t meanOfColumn(ImageLines lines, std::span<const std::int16_t> weights, std::size_t at) {
    std::int32_t sum = 1 << (columnShift - 1);
    for (std::size_t i = 0; i < weights.size(); ++i)
        sum += weights[i] * lines.bytes[i * lines.stride + at];
    return static_cast<std::int16_t>(sum >> columnShift);
}

/// Blends one pixel of an image, in ARGB order, at `opacity`.
void blendImagePixel(std::uint8_t* pixel, const std::uint8_t* source, std::uint8_t opacity,
                     PixelOrder order) {
    const unsigned keep = 255U - mulDiv255(source[0], opacity);
    for (std::size_t i = 0; i < channels; ++i) {
        std::uint8_t& byte = pixel[order == PixelOrder::argb ? i : channels - 1 - i];
        byte = static_cast<std::uint8_t>(mulDiv255(source[i], opacity) + mulDiv255(byte, keep));
    }
}

}  // namespace
}  // namespace marlevo
#endif

HWY_BEFORE_NAMESPACE();
namespace marlevo::HWY_NAMESPACE {
namespace {

/// The weighted mean of lines, for `count` bytes of each.
void meanOfLines(ImageLines lines, std::span<const std::int16_t> weights, std::size_t count,
                 std::int16_t* HWY_RESTRICT out) {
    std::size_t at = 0;
#if HWY_TARGET != HWY_SCALAR
    const hn::ScalableTag<std::int32_t> d32;
    const hn::Rebind<std::uint8_t, decltype(d32)> dBytes;
    const hn::Rebind<std::int16_t, decltype(d32)> d16;
    const std::size_t lanes = hn::Lanes(d32);
    for (; at + lanes <= count; at += lanes) {
        auto sum = hn::Set(d32, 1 << (columnShift - 1));
        const std::uint8_t* line = lines.bytes + at;
        for (const std::int16_t weight : weights) {
            const auto bytes = hn::PromoteTo(d32, hn::LoadU(dBytes, line));
            sum = hn::Add(sum, hn::Mul(bytes, hn::Set(d32, std::int32_t{weight})));
            line += lines.stride;
        }
        hn::StoreU(hn::DemoteTo(d16, hn::ShiftRight<columnShift>(sum)), d16, out + at);
    }
#endif
    for (; at < count; ++at)
        out[at] = meanOfColumn(lines, weights, at);
}

/// The weighted mean of neighbouring pixels of a line, for each window of `columns`. The first
/// pixel of `line` is columns.firstNeeded().
void meanOfPixels(const std::int16_t* HWY_RESTRICT line, const ResampleAxis& columns,
                  std::uint8_t* HWY_RESTRICT out) {
    const std::size_t begin = columns.firstNeeded();
    for (std::size_t x = 0; x < columns.count(); ++x) {
        const ResampleAxis::Window window = columns[x];
        const std::int16_t* pixel = line + channels * (window.first - begin);
#if HWY_TARGET != HWY_SCALAR
        const hn::FixedTag<std::int32_t, channels> d32;
        const hn::Rebind<std::int16_t, decltype(d32)> d16;
        const hn::Rebind<std::uint8_t, decltype(d32)> dBytes;
        auto sum = hn::Set(d32, 1 << (rowShift - 1));
        for (const std::int16_t weight : window.weights) {
            const auto components = hn::PromoteTo(d32, hn::LoadU(d16, pixel));
            sum = hn::Add(sum, hn::Mul(components, hn::Set(d32, std::int32_t{weight})));
            pixel += channels;
        }
        hn::StoreU(hn::DemoteTo(dBytes, hn::ShiftRight<rowShift>(sum)), dBytes, out + channels * x);
#else
        std::int32_t sums[channels] = {};
        for (const std::int16_t weight : window.weights) {
            for (std::size_t i = 0; i < channels; ++i)
                sums[i] += weight * pixel[i];
            pixel += channels;
        }
        for (std::size_t i = 0; i < channels; ++i)
            out[channels * x + i] =
                static_cast<std::uint8_t>((sums[i] + (1 << (rowShift - 1))) >> rowShift);
#endif
    }
}

/// Blends `count` pixels in ARGB order, each with its own opacity.
void blendLine(std::uint8_t* HWY_RESTRICT pixels, const std::uint8_t* HWY_RESTRICT source,
               const std::uint8_t* HWY_RESTRICT opacities, std::size_t count, PixelOrder order) {
    std::size_t done = 0;
#if HWY_TARGET != HWY_SCALAR
    const hn::ScalableTag<std::uint32_t> d32;
    const hn::Repartition<std::uint16_t, decltype(d32)> d16;
    const hn::Repartition<std::uint8_t, decltype(d32)> dBytes;
    const hn::Rebind<std::uint8_t, decltype(d32)> dOpacity;
    const auto both = [&](auto v) { return hn::BitCast(d16, hn::Or(v, hn::ShiftLeft<16>(v))); };
    const auto low = hn::Set(d32, 0xFFU);
    const std::size_t lanes = hn::Lanes(d32);
    for (; done + lanes <= count; done += lanes) {
        const auto opacity = both(hn::PromoteTo(d32, hn::LoadU(dOpacity, opacities + done)));
        auto above =
            unpackBytes(d32, hn::BitCast(d32, hn::LoadU(dBytes, source + channels * done)));
        above.even = mulDiv255(d16, above.even, opacity);
        above.odd = mulDiv255(d16, above.odd, opacity);
        const auto alpha = both(hn::And(hn::BitCast(d32, above.even), low));
        const auto keep = hn::Sub(hn::Set(d16, std::uint16_t{255}), alpha);
        if (order == PixelOrder::bgra) {
            // Bytes 0, 1, 2, 3 become 3, 2, 1, 0: even and odd are swapped, and their halves too.
            const auto even = above.even;
            above.even = hn::BitCast(d16, hn::RotateRight<16>(hn::BitCast(d32, above.odd)));
            above.odd = hn::BitCast(d16, hn::RotateRight<16>(hn::BitCast(d32, even)));
        }
        compositeOver(d32, pixels + channels * done, above, keep);
    }
#endif
    for (; done < count; ++done)
        blendImagePixel(pixels + channels * done, source + channels * done, opacities[done], order);
}

}  // namespace
}  // namespace marlevo::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace marlevo {

HWY_EXPORT(meanOfLines);
HWY_EXPORT(meanOfPixels);
HWY_EXPORT(blendLine);

void drawImage(const RasterImage& image, const Bounds& rect, double alpha,
               const PixelBuffer& target) {
    const bool isFinite = std::isfinite(rect.left) && std::isfinite(rect.top) &&
                          std::isfinite(rect.right) && std::isfinite(rect.bottom);
    if (!isFinite || !(rect.left < rect.right) || !(rect.top < rect.bottom) || !(alpha > 0) ||
        target.area.isEmpty())
        return;
    const IntRect touched = rect.pixelsWithin(target.area);
    if (touched.isEmpty()) return;

    const ResampleAxis columns(image.width(), rect.left, rect.right, touched.left, touched.width());
    const ResampleAxis rows(image.height(), rect.top, rect.bottom, touched.top, touched.height());
    const std::size_t neededBytes = channels * (columns.endNeeded() - columns.firstNeeded());
    const std::size_t stride = channels * static_cast<std::size_t>(image.width());
    const auto opacity = static_cast<std::uint8_t>(std::lround(std::min(alpha, 1.0) * 255));

    std::vector<std::int16_t> line(neededBytes);
    std::vector<std::uint8_t> pixels(channels * columns.count());
    std::vector<std::uint8_t> opacities(columns.count());
    for (std::size_t y = 0; y < rows.count(); ++y) {
        const ResampleAxis::Window window = rows[y];
        const unsigned rowOpacity = mulDiv255(opacity, window.coverage);
        if (rowOpacity == 0) continue;
        for (std::size_t x = 0; x < opacities.size(); ++x)
            opacities[x] = mulDiv255(rowOpacity, columns[x].coverage);
        const std::uint8_t* const first =
            image.bytes().data() + window.first * stride + channels * columns.firstNeeded();
        HWY_DYNAMIC_DISPATCH(meanOfLines)
        ({first, stride}, window.weights, neededBytes, line.data());
        HWY_DYNAMIC_DISPATCH(meanOfPixels)(line.data(), columns, pixels.data());
        HWY_DYNAMIC_DISPATCH(blendLine)
        (target.pixel(touched.left, touched.top + static_cast<int>(y)), pixels.data(),
         opacities.data(), opacities.size(), target.order);
    }
}

}  // namespace marlevo
#endif
