#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace marlevo {

/// How one side of an image is stretched over an interval of the device plane: which of its pixels
/// make up each device pixel, and with which weights.
class ResampleAxis {
public:
    static constexpr int weightBits = 14;

    /// The image pixels `first` and on weigh in the device pixel by `weights`, which add up to
    /// 1 << weightBits.
    struct Window {
        std::size_t first;
        std::span<const std::int16_t> weights;
        std::uint8_t coverage;  ///< how much of the device pixel the interval covers, of 255
    };

    /// For `count` device pixels from `firstPixel` on, each touched by the interval from `start` to
    /// `end`, over which `imageSize` pixels are stretched.
    ResampleAxis(int imageSize, double start, double end, int firstPixel, int count);

    std::size_t count() const { return entries_.size(); }
    Window operator[](std::size_t i) const {
        const Entry& e = entries_[i];
        return {e.first, {weights_.data() + e.firstWeight, e.weightCount}, e.coverage};
    }

    /// The image pixels that any device pixel needs.
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
