#include "graphics/FillOutline.h"

#include "graphics/AccumulationBuffer.h"
#include "graphics/EdgeBuilder.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace marlevo {

namespace {

/// Cells a band holds at most (unless one row is longer). Only those along edges are touched, so
/// most outlines need no second band, and what is touched stays in the cache.
constexpr int bandCells = 1 << 18;

/// Fills an outline band by band. Edges go to the first band at once, which is most often the only
/// one; what they have in later bands is filed by the band in which that begins.
class BandFiller {
public:
    void fill(const FlattenedPath& outline, const PixelBuffer& target, PackedColor color);

private:
    struct Entry {
        Edge edge;
        std::int32_t next;  ///< of the same band
    };
    static constexpr std::int32_t none = -1;

    void addEdge(const Edge& edge);
    void fileEdge(const Edge& edge, int band);
    void addFiledEdges(int band);

    int bandCount() const { return (box_.height() + bandRows_ - 1) / bandRows_; }
    /// The first row below a band.
    int bandBottom(int band) const {
        return std::min(box_.top + (band + 1) * bandRows_, box_.bottom);
    }

    IntRect box_;
    int bandRows_ = 1;
    AccumulationBuffer band_;
    std::vector<Entry> entries_;
    std::vector<std::int32_t> bandHeads_;
};

void BandFiller::fill(const FlattenedPath& outline, const PixelBuffer& target, PackedColor color) {
    const EdgeBuilder edges(outline);
    box_ = edges.touchedPixels(target.area);
    if (box_.isEmpty()) return;

    bandRows_ = std::clamp(bandCells / box_.width(), 1, box_.height());
    entries_.clear();
    bandHeads_.assign(static_cast<std::size_t>(bandCount()), none);
    IntRect area = box_;
    for (int band = 0; band < bandCount(); ++band) {
        area.bottom = bandBottom(band);
        band_.reset(area);
        if (band == 0)
            edges.forEach([this](const Edge& edge) { addEdge(edge); });
        else
            addFiledEdges(band);
        band_.blendInto(target, color);
        area.top = area.bottom;
    }
}

void BandFiller::addEdge(const Edge& edge) {
    constexpr int one = AccumulationBuffer::subpixels;
    if (edge.y1 <= box_.top * one || edge.y0 >= box_.bottom * one ||
        std::min(edge.x0, edge.x1) >= box_.right * one)
        return;
    if (edge.y0 < bandBottom(0) * one) {
        band_.add(edge);
        if (edge.y1 > bandBottom(0) * one) fileEdge(edge, 1);
    } else {
        fileEdge(edge, ((edge.y0 >> AccumulationBuffer::subpixelBits) - box_.top) / bandRows_);
    }
}

void BandFiller::fileEdge(const Edge& edge, int band) {
    if (band >= bandCount()) return;
    std::int32_t& head = bandHeads_[static_cast<std::size_t>(band)];
    entries_.push_back({edge, head});
    head = static_cast<std::int32_t>(entries_.size() - 1);
}

/// Adds the edges filed for a band and files those that go on for the next.
void BandFiller::addFiledEdges(int band) {
    const std::int32_t bottom = bandBottom(band) * AccumulationBuffer::subpixels;
    for (std::int32_t at = bandHeads_[static_cast<std::size_t>(band)]; at != none;) {
        Entry& entry = entries_[static_cast<std::size_t>(at)];
        const std::int32_t next = entry.next;
        band_.add(entry.edge);
        if (entry.edge.y1 > bottom && band + 1 < bandCount()) {
            std::int32_t& head = bandHeads_[static_cast<std::size_t>(band) + 1];
            entry.next = head;
            head = at;
        }
        at = next;
    }
}

}  // namespace

void fillOutline(const FlattenedPath& outline, const PixelBuffer& target, PackedColor color) {
    // Kept between calls for its memory only.
    thread_local BandFiller filler;
    filler.fill(outline, target, color);
}

}  // namespace marlevo
