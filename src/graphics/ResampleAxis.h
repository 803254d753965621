#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace marlevo {

/// The weights of image pixels in device pixels, for one side of an image that is stretched over an
/// interval of the device plane.
class ResampleAxis {
public:
    static constexpr int weightBits = 14;

    /// The weights, with a sum of 1 << weightBits, of the image pixels from `first` on in a device
    /// pixel.
    struct Window {
        std::size_t first;
        std::span<const std::int16_t> weights;
        std::uint8_t coverage;  ///< the share of the device pixel in the interval, 0 … 255
    };

    /// Stretches `imageSize` pixels over the interval from `start` to `end`, which touches each of
    /// the `count` device pixels from `firstPixel` on.
    ResampleAxis(int imageSize, double start, double end, int firstPixel, int count);

    std::size_t count() const { return entries_.size(); }
    Window operator[](std::size_t i) const {
        const Entry& e = entries_[i];
        return {e.first, {weights_.data() + e.firstWeight, e.weightCount}, e.coverage};
    }

    /// The range of image pixels with a weight.
    std::size_t firstNeeded() const { return entries_.front().first; }
    std::size_t endNeeded() const { return entries_.back().first + entries_.back().weightCount; }

private:
    struct Entry {
        std::size_t first;
        std::size_t firstWeight;
        std::size_t weightCount;
        std::uint8_t coverage;
    };

    std::vector<Entry> entries_;
    std::vector<std::int16_t> weights_;
};

}  // namespace marlevo
