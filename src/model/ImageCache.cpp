#include "model/ImageCache.h"

#include "platform/ImageCodec.h"
#include "platform/ParallelFor.h"

#include <algorithm>
#include <numeric>
#include <thread>

namespace marlevo {

std::optional<RasterImage> ImageCache::image(const Bytes& file) {
    if (codec_ == nullptr) return std::nullopt;
    const auto known = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
        return entry.file.sharesWith(file);
    });
    if (known != entries_.end()) {
        std::rotate(known, known + 1, entries_.end());
        return entries_.back().image;
    }
    std::optional<RasterImage> decoded = codec_->decode(file.span());
    keep({file, decoded});
    return decoded;
}

void ImageCache::decodeAhead(const LayerList& layers) {
    if (codec_ == nullptr) return;
    std::vector<Entry> missing;
    for (const Layer& layer : layers) {
        if (!layer.isVisible || !layer.imageData || holds(*layer.imageData)) continue;
        if (std::ranges::none_of(
                missing, [&](const Entry& each) { return each.file.sharesWith(*layer.imageData); }))
            missing.push_back({*layer.imageData, std::nullopt});
    }
    // A few at a time, because the size of an image is known only after decoding.
    const std::size_t step = std::max(std::thread::hardware_concurrency(), 1U);
    std::size_t largest = 0;
    for (std::size_t from = 0; from < missing.size(); from += step) {
        const std::size_t count = std::min(step, missing.size() - from);
        if (bytes_ + count * largest > maxBytes_) return;
        parallelFor(count, [&](std::size_t i) {
            Entry& entry = missing[from + i];
            entry.image = codec_->decode(entry.file.span());
        });
        for (std::size_t i = from; i < from + count; ++i) {
            largest = std::max(largest, missing[i].size());
            keep(std::move(missing[i]));
        }
    }
}

void ImageCache::keep(Entry entry) {
    bytes_ += entry.size();
    entries_.push_back(std::move(entry));
    while (bytes_ > maxBytes_) {
        bytes_ -= entries_.front().size();
        entries_.erase(entries_.begin());
    }
}

bool ImageCache::holds(const Bytes& file) const {
    return std::ranges::any_of(entries_,
                               [&](const Entry& each) { return each.file.sharesWith(file); });
}

std::optional<RasterImage> ImageCache::known(const Bytes& file) const {
    const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& each) { return each.file.sharesWith(file); });
    return entry != entries_.end() ? entry->image : std::nullopt;
}

void ImageCache::retainOnly(const LayerList& layers) {
    std::erase_if(entries_, [&](const Entry& entry) {
        return std::none_of(layers.begin(), layers.end(), [&](const Layer& layer) {
            return layer.isVisible && layer.imageData && layer.imageData->sharesWith(entry.file);
        });
    });
    bytes_ = std::accumulate(entries_.begin(), entries_.end(), std::size_t{0},
                             [](std::size_t sum, const Entry& each) { return sum + each.size(); });
}

}  // namespace marlevo
