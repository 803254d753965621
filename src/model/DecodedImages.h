#pragma once

#include "graphics/RasterImage.h"
#include "model/Bytes.h"
#include "model/LayerList.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace marlevo {

class ImageCodec;

/// The pixels of the image files that a picture is being drawn with, so that a redraw does not
/// decode them again. Which files it holds shows in nothing but time.
class DecodedImages {
public:
    /// The most that is kept. A single picture beyond it is decoded at each use.
    static constexpr std::size_t maxBytes = std::size_t{512} << 20;

    /// Without a codec no file is an image.
    explicit DecodedImages(const ImageCodec* codec) : codec_(codec) {}

    /// The picture in the file, sharing its pixels; nothing when it cannot be decoded.
    std::optional<RasterImage> image(const Bytes& file);

    /// Decodes on all cores what the visible layers want, as far as it can be kept.
    void decodeAhead(const LayerList& layers);

    /// The picture in the file if it is at hand, without decoding.
    std::optional<RasterImage> known(const Bytes& file) const;

    /// Lets go of every file that no visible layer of the list uses.
    void keepOnly(const LayerList& layers);

private:
    struct Entry {
        Bytes file;
        std::optional<RasterImage> image;

        std::size_t size() const { return image ? image->bytes().size() : 0; }
    };

    bool holds(const Bytes& file) const;
    void keep(Entry entry);

    const ImageCodec* codec_;
    std::vector<Entry> entries_;  ///< most recently used last
    std::size_t bytes_ = 0;       ///< of all their images
};

}  // namespace marlevo
