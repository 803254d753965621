#include "render/CellSearch.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace marlevo {

namespace {

/// A picture that differs by more strokes is not used.
constexpr std::size_t mostStrokes = 64;

/// Bounds on the time of a search: versions of a cell that are compared, and comparisons in all.
constexpr std::size_t mostCandidates = 3;
constexpr std::size_t mostComparisons = 32;

std::size_t distance(std::size_t a, std::size_t b) { return a > b ? a - b : b - a; }

}  // namespace

std::optional<std::size_t> CellSearch::findSame(const KeptCells::Versions& versions) {
    for (std::size_t i = versions.size(); i-- > 0;)
        if (relationTo(versions[i].picture).isSame) return i;
    return std::nullopt;
}

std::optional<CellSearch::Found> CellSearch::findSimilar(const KeptCells::Versions& versions,
                                                         const IntRect& tile, CellMask cell) {
    // Pictures with nearly as many strokes are likely to be near in the history, and strokes can be
    // added to older ones.
    const auto remoteness = [&](std::size_t version) {
        const std::size_t strokes = versions[version].picture->strokes;
        return std::pair(strokes > wantedStrokes_, distance(strokes, wantedStrokes_));
    };
    const auto isNearer = [&](std::size_t a, std::size_t b) {
        return remoteness(a) < remoteness(b);
    };
    std::vector<std::size_t> nearest(versions.size());
    for (std::size_t i = 0; i < nearest.size(); ++i)
        nearest[i] = nearest.size() - 1 - i;
    const std::size_t candidates = std::min(mostCandidates, nearest.size());
    std::ranges::partial_sort(nearest, nearest.begin() + static_cast<std::ptrdiff_t>(candidates),
                              isNearer);

    std::optional<Found> best;
    for (std::size_t i = 0; i < candidates; ++i) {
        const std::size_t version = nearest[i];
        const PictureDifference* const difference = differenceFrom(versions[version].picture);
        if (!difference || (difference->damage.in(tile)&cell)) continue;
        if (!(difference->drawnOverCells.in(tile)&cell)) return Found{version, difference, false};
        if (!best || difference->drawnOver.size() < best->difference->drawnOver.size())
            best = Found{version, difference, true};
    }
    return best;
}

CellSearch::Relation& CellSearch::relationTo(const ShownPicturePtr& picture) {
    const auto [known, isNew] = relations_.try_emplace(picture.get());
    if (isNew && showTheSame(picture->layers, wanted_)) {
        known->second.isSame = true;
        same_ = picture;
    }
    return known->second;
}

const PictureDifference* CellSearch::differenceFrom(const ShownPicturePtr& picture) {
    Relation& relation = relationTo(picture);
    if (!relation.isCompared) {
        if (distance(picture->strokes, wantedStrokes_) > mostStrokes ||
            comparisons_ == mostComparisons)
            return nullptr;
        ++comparisons_;
        relation.isCompared = true;
        relation.difference =
            PictureDifference::between(picture->layers, wanted_, scale_, allowed_, mostStrokes);
    }
    return relation.difference ? &*relation.difference : nullptr;
}

}  // namespace marlevo
