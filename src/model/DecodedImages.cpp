#include "model/DecodedImages.h"

#include "platform/ImageCodec.h"

#include <algorithm>
#include <numeric>

namespace marlevo {

std::optional<RasterImage> DecodedImages::image(const Bytes& file) {
    if (codec_ == nullptr) return std::nullopt;
    const auto known = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
        return entry.file.sharesWith(file);
    });
    if (known != entries_.end()) {
        std::rotate(known, known + 1, entries_.end());
        return entries_.back().image;
    }
    Entry entry{file, codec_->decode(file.span())};
    std::optional<RasterImage> result = entry.image;
    entries_.push_back(std::move(entry));
    std::size_t total =
        std::accumulate(entries_.begin(), entries_.end(), std::size_t{0},
                        [](std::size_t sum, const Entry& each) { return sum + each.size(); });
    while (total > maxBytes) {
        total -= entries_.front().size();
        entries_.erase(entries_.begin());
    }
    return result;
}

std::optional<RasterImage> DecodedImages::known(const Bytes& file) const {
    const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& each) { return each.file.sharesWith(file); });
    return entry != entries_.end() ? entry->image : std::nullopt;
}

void DecodedImages::keepOnly(const LayerList& layers) {
    std::erase_if(entries_, [&](const Entry& entry) {
        return std::none_of(layers.begin(), layers.end(), [&](const Layer& layer) {
            return layer.isVisible && layer.imageData && layer.imageData->sharesWith(entry.file);
        });
    });
}

}  // namespace marlevo
