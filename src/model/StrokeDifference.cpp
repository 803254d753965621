#include "model/StrokeDifference.h"

#include <algorithm>
#include <compare>
#include <limits>
#include <span>

// A stroke or node that two versions share is the same object in both, and no operation changes the
// order of the remaining ones. So it is enough to compare sets of objects, level by level from the
// root: nodes of both sides are dropped with all that is below them, the others are replaced by
// their children.

namespace marlevo {

namespace {

using stroke_tree::Node;
using stroke_tree::Record;

/// The strokes of a leaf that belong to one version: versions may share an open leaf and have
/// different numbers of its strokes.
struct Run {
    explicit Run(std::span<const IntrusivePtr<Record>> records)
        : first(records.data()), size(records.size()) {}
    auto operator<=>(const Run&) const = default;

    const IntrusivePtr<Record>* first;
    std::size_t size;
};

template <typename T>
void dropCommon(std::vector<T>& a, std::vector<T>& b) {
    std::vector<T> sortedA = a;
    std::vector<T> sortedB = b;
    std::ranges::sort(sortedA);
    std::ranges::sort(sortedB);
    std::erase_if(a, [&](const T& item) { return std::ranges::binary_search(sortedB, item); });
    std::erase_if(b, [&](const T& item) { return std::ranges::binary_search(sortedA, item); });
}

using Nodes = std::vector<const Node*>;

std::size_t height(const Nodes& nodes) { return nodes.empty() ? 0 : nodes.front()->height; }

void descend(Nodes& nodes) {
    Nodes children;
    for (const Node* node : nodes)
        for (const auto& child : asBranch(*node).nodes())
            children.push_back(child.get());
    nodes = std::move(children);
}

std::vector<Run> runs(const Nodes& leaves, std::span<const IntrusivePtr<Record>> tail) {
    std::vector<Run> runs;
    for (const Node* leaf : leaves)
        runs.emplace_back(asLeaf(*leaf).records());
    if (!tail.empty()) runs.emplace_back(tail);
    return runs;
}

std::vector<const Stroke*> strokes(const std::vector<Run>& runs) {
    std::vector<const Stroke*> strokes;
    for (const Run& run : runs)
        for (const auto& record : std::span(run.first, run.size))
            strokes.push_back(&record->stroke);
    return strokes;
}

}  // namespace

StrokeDifference StrokeDifference::between(const StrokeList& before, const StrokeList& after) {
    return *betweenSimilar(before, after, std::numeric_limits<std::size_t>::max());
}

std::optional<StrokeDifference> StrokeDifference::betweenSimilar(const StrokeList& before,
                                                                 const StrokeList& after,
                                                                 std::size_t most) {
    if (before.sharesWith(after)) return StrokeDifference();
    const auto [fewer, more] = std::minmax({before.size(), after.size()});
    if (more - fewer > most) return std::nullopt;
    Nodes a;
    Nodes b;
    if (before.tree_) a.push_back(before.tree_.get());
    if (after.tree_) b.push_back(after.tree_.get());
    while (true) {
        const std::size_t heightA = height(a);
        const std::size_t heightB = height(b);
        if (heightA == heightB) dropCommon(a, b);
        // Nearly every node that is left has a stroke that differs.
        if (a.size() / 2 + b.size() / 2 > most) return std::nullopt;
        if (heightA == 0 && heightB == 0) break;
        if (heightA >= heightB) descend(a);
        if (heightB >= heightA) descend(b);
    }

    std::vector<Run> runsA = runs(a, before.tail());
    std::vector<Run> runsB = runs(b, after.tail());
    dropCommon(runsA, runsB);
    StrokeDifference difference{strokes(runsA), strokes(runsB)};
    dropCommon(difference.removed, difference.added);
    return difference;
}

}  // namespace marlevo
