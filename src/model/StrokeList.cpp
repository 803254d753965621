#include "model/StrokeList.h"

namespace marlevo {

using stroke_tree::Leaf;
using stroke_tree::Record;

StrokeList::StrokeList(std::vector<Stroke> strokes) {
    for (Stroke& stroke : strokes)
        append(std::move(stroke));
}

const Stroke& StrokeList::operator[](std::size_t index) const {
    return recordsFrom(index).front()->stroke;
}

std::span<const IntrusivePtr<Record>> StrokeList::recordsFrom(std::size_t index) const {
    if (index < treeSize()) return stroke_tree::recordsFrom(*tree_, index);
    return tail().subspan(index - treeSize());
}

void StrokeList::Iterator::enterLeaf() {
    const auto records = list_->recordsFrom(index_);
    record_ = records.data();
    leafEnd_ = record_ + records.size();
}

Leaf& StrokeList::ownTail() {
    if (tail_.isUnique())
        tail_->truncate(tailSize_);
    else
        tail_ = IntrusivePtr<Leaf>::make(*tail_, tailSize_);
    return *tail_;
}

void StrokeList::append(Stroke stroke) {
    stroke.points.shrinkToFit();
    const auto record = IntrusivePtr<Record>::make(std::move(stroke));
    if (!tail_) tail_ = IntrusivePtr<Leaf>::make();
    if (!tail_->appendAfter(tailSize_, record)) ownTail().appendAfter(tailSize_, record);
    if (++tailSize_ < stroke_tree::fanOut) return;

    tail_->summarise();
    appendLeaf(tree_, std::move(tail_));
    tailSize_ = 0;
}

void StrokeList::erase(std::size_t at) {
    if (at < treeSize()) {
        stroke_tree::erase(tree_, at);
        return;
    }
    ownTail().erase(at - treeSize());
    --tailSize_;
}

void StrokeList::replace(std::size_t at, Stroke stroke) {
    if (at < treeSize())
        stroke_tree::replace(tree_, at, std::move(stroke));
    else
        ownTail().replace(at - treeSize(), std::move(stroke));
}

StrokeSummary StrokeList::summary() const {
    StrokeSummary summary = tree_ ? tree_->summary : StrokeSummary{};
    for (const auto& record : tail())
        summary.add(StrokeSummary::of(record->stroke));
    return summary;
}

}  // namespace marlevo
