#pragma once

#include "platform/ImageCodec.h"

#include <atomic>

namespace marlevo {

/// Its "files" are width and height, one byte each, then the bytes of a RasterImage.
class FakeImageCodec : public ImageCodec {
public:
    std::optional<RasterImage> decode(std::span<const std::uint8_t> file) const override {
        if (file.size() < 2) return std::nullopt;
        const int width = file[0];
        const int height = file[1];
        const auto pixels = file.subspan(2);
        if (pixels.size() != std::size_t{4} * width * height || pixels.empty()) return std::nullopt;
        return RasterImage(width, height, {pixels.begin(), pixels.end()});
    }

    std::optional<std::vector<std::uint8_t>> encode(const RasterImage& image,
                                                    Format /*format*/) const override {
        std::vector<std::uint8_t> file{static_cast<std::uint8_t>(image.width()),
                                       static_cast<std::uint8_t>(image.height())};
        file.insert(file.end(), image.bytes().begin(), image.bytes().end());
        return file;
    }
};

/// Counts its calls, which may be on any thread.
class CountingImageCodec : public FakeImageCodec {
public:
    std::optional<RasterImage> decode(std::span<const std::uint8_t> file) const override {
        ++decoded;
        return FakeImageCodec::decode(file);
    }

    mutable std::atomic<int> decoded = 0;
};

}  // namespace marlevo
