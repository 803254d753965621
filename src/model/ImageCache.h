#pragma once

#include "graphics/RasterImage.h"
#include "model/Bytes.h"
#include "model/LayerList.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace marlevo {

class ImageCodec;

/// The decoded pixels of the image files that were drawn last. Its contents affect only how long
/// drawing takes. Each window has one cache, shared by everything that draws the window's picture.
///
/// Used on the user-interface thread; decodeAhead() uses other threads meanwhile.
class ImageCache {
public:
    static constexpr std::size_t defaultMaxBytes = std::size_t{512} << 20;

    /// Without a codec no file is an image. `maxBytes` bounds the pixels that are kept; an image
    /// above it is decoded at each use.
    explicit ImageCache(const ImageCodec* codec, std::size_t maxBytes = defaultMaxBytes)
        : codec_(codec), maxBytes_(maxBytes) {}
    ImageCache(const ImageCache&) = delete;
    ImageCache& operator=(const ImageCache&) = delete;

    /// The image in the file, sharing its pixels; nothing when it cannot be decoded.
    std::optional<RasterImage> image(const Bytes& file);

    /// Decodes the images of the visible layers on all cores, as many as can be kept.
    void decodeAhead(const LayerList& layers);

    /// The image in the file if it is in the cache. Does not decode and does not count as a use.
    std::optional<RasterImage> known(const Bytes& file) const;

    /// Drops every file that no visible layer of the list uses.
    void retainOnly(const LayerList& layers);

private:
    struct Entry {
        Bytes file;
        std::optional<RasterImage> image;

        std::size_t size() const { return image ? image->bytes().size() : 0; }
    };

    bool holds(const Bytes& file) const;
    void keep(Entry entry);

    const ImageCodec* codec_;
    std::size_t maxBytes_;
    std::vector<Entry> entries_;  ///< the most recently used last
    std::size_t bytes_ = 0;       ///< of all images in the cache
};

}  // namespace marlevo
