#include "graphics/ResampleAxis.h"

#include <algorithm>
#include <cmath>

namespace marlevo {

ResampleAxis::ResampleAxis(int imageSize, double start, double end, int firstPixel, int count) {
    const double size = imageSize;
    // Halves keep the extent of a vast interval finite.
    const double scale = size / 2 / (end / 2 - start / 2);
    // Half the width of the triangle, in image pixels; at most the image.
    const double reach = std::clamp(scale, 1.0, size);
    entries_.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const double pixel = double(firstPixel) + i;
        const double center = std::clamp((pixel + 0.5 - start) * scale, 0.0, size);
        const auto weightAt = [&](int index) {
            return std::max(0.0, 1 - std::abs(index + 0.5 - center) / reach);
        };
        const auto first = static_cast<int>(std::max(0.0, std::floor(center - reach - 0.5) + 1));
        const auto last = static_cast<int>(std::min(size, std::ceil(center + reach - 0.5)) - 1);
        double total = 0;
        for (int at = first; at <= last; ++at)
            total += weightAt(at);

        const double covered = std::min(end, pixel + 1) - std::max(start, pixel);
        entries_.push_back(
            {static_cast<std::size_t>(first), weights_.size(),
             static_cast<std::size_t>(last - first) + 1,
             static_cast<std::uint8_t>(std::lround(std::clamp(covered, 0.0, 1.0) * 255))});
        // Rounding the running total, not each weight, keeps the sum exact.
        double running = 0;
        long done = 0;
        for (int at = first; at <= last; ++at) {
            running += weightAt(at);
            const long next =
                at == last ? 1L << weightBits : std::lround(running / total * (1 << weightBits));
            weights_.push_back(static_cast<std::int16_t>(next - done));
            done = next;
        }
    }
}

}  // namespace marlevo
