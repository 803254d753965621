#include "model/StrokeTree.h"

#include <algorithm>

namespace marlevo::stroke_tree {

namespace {

/// Makes this owner the only one of the node, by a copy if it is shared. The node may then be
/// changed, provided that every node above it was made unique in the same way.
template <typename NodeType>
NodeType& own(IntrusivePtr<Node>& node) {
    if (!node.isUnique()) node = IntrusivePtr<NodeType>::make(static_cast<const NodeType&>(*node));
    return static_cast<NodeType&>(*node);
}

template <typename T>
void closeGap(std::array<IntrusivePtr<T>, fanOut>& slots, std::size_t at, std::size_t size) {
    std::move(slots.begin() + at + 1, slots.begin() + size, slots.begin() + at);
    slots[size - 1] = {};
}

struct Place {
    std::size_t child;
    std::size_t index;  ///< within that child
};

Place findChild(const Branch& branch, std::size_t index) {
    std::size_t child = 0;
    while (index >= branch.children[child]->summary.count) {
        index -= branch.children[child]->summary.count;
        ++child;
    }
    return {child, index};
}

bool hasRoomForLeaf(const Node& node) {
    if (node.isLeaf()) return false;
    const Branch& branch = asBranch(node);
    return branch.childCount < fanOut || hasRoomForLeaf(*branch.last());
}

IntrusivePtr<Node> branchOver(IntrusivePtr<Node> child) {
    auto branch = IntrusivePtr<Branch>::make(child->height + 1);
    branch->append(std::move(child));
    branch->summarise();
    return branch;
}

void appendBelow(IntrusivePtr<Node>& node, IntrusivePtr<Node> leaf) {
    Branch& branch = own<Branch>(node);
    if (hasRoomForLeaf(*branch.last())) {
        appendBelow(branch.last(), std::move(leaf));
    } else {
        while (leaf->height + 1 < branch.height)
            leaf = branchOver(std::move(leaf));
        branch.append(std::move(leaf));
    }
    branch.summarise();
}

void eraseBelow(IntrusivePtr<Node>& node, std::size_t index) {
    if (node->isLeaf()) {
        Leaf& leaf = own<Leaf>(node);
        leaf.erase(index);
        leaf.summarise();
        return;
    }
    Branch& branch = own<Branch>(node);
    const Place place = findChild(branch, index);
    IntrusivePtr<Node>& child = branch.children[place.child];
    eraseBelow(child, place.index);
    if (child->summary.count == 0) branch.erase(place.child);
    branch.summarise();
}

}  // namespace

Leaf::Leaf(const Leaf& other, std::size_t size) : Node(0), filled(size) {
    std::copy_n(other.slots.begin(), size, slots.begin());
    for (std::size_t i = 0; i < size; ++i)
        boxes.set(i, other.boxes[i]);
}

bool Leaf::appendAfter(std::size_t known, const IntrusivePtr<Record>& record) {
    // Two versions on two threads may append at the same time: one of them gets the slot.
    if (known == fanOut || !filled.compare_exchange_strong(known, known + 1)) return false;
    slots[known] = record;
    boxes.set(known, FloatBox::paintedBy(StrokeSummary::of(record->stroke)));
    return true;
}

void Leaf::replace(std::size_t at, Stroke stroke) {
    boxes.set(at, FloatBox::paintedBy(StrokeSummary::of(stroke)));
    if (slots[at].isUnique())
        slots[at]->stroke = std::move(stroke);
    else
        slots[at] = IntrusivePtr<Record>::make(std::move(stroke));
}

void Leaf::erase(std::size_t at) {
    closeGap(slots, at, filled);
    --filled;
    for (std::size_t i = at; i < filled; ++i)
        boxes.set(i, boxes[i + 1]);
    boxes.set(filled, {});
}

void Leaf::truncate(std::size_t size) {
    for (std::size_t at = size; at < filled; ++at) {
        slots[at] = {};
        boxes.set(at, {});
    }
    filled = size;
}

void Leaf::summarise() {
    summary = {};
    for (const IntrusivePtr<Record>& record : records())
        summary.add(StrokeSummary::of(record->stroke));
}

void Branch::erase(std::size_t at) {
    closeGap(children, at, childCount);
    --childCount;
}

void Branch::summarise() {
    summary = {};
    for (const IntrusivePtr<Node>& child : nodes())
        summary.add(child->summary);
}

std::span<const IntrusivePtr<Record>> recordsFrom(const Node& root, std::size_t index) {
    const Node* node = &root;
    while (!node->isLeaf()) {
        const Place place = findChild(asBranch(*node), index);
        node = asBranch(*node).children[place.child].get();
        index = place.index;
    }
    return asLeaf(*node).records().subspan(index);
}

void appendLeaf(IntrusivePtr<Node>& root, IntrusivePtr<Node> leaf) {
    if (!root) {
        root = std::move(leaf);
        return;
    }
    if (!hasRoomForLeaf(*root)) root = branchOver(std::move(root));
    appendBelow(root, std::move(leaf));
}

void erase(IntrusivePtr<Node>& root, std::size_t index) {
    eraseBelow(root, index);
    if (root->summary.count == 0) {
        root = {};
        return;
    }
    while (!root->isLeaf() && asBranch(*root).childCount == 1) {
        IntrusivePtr<Node> child = asBranch(*root).last();
        root = std::move(child);
    }
}

void replace(IntrusivePtr<Node>& root, std::size_t index, Stroke stroke) {
    if (root->isLeaf()) {
        Leaf& leaf = own<Leaf>(root);
        leaf.replace(index, std::move(stroke));
        leaf.summarise();
        return;
    }
    Branch& branch = own<Branch>(root);
    const Place place = findChild(branch, index);
    replace(branch.children[place.child], place.index, std::move(stroke));
    branch.summarise();
}

}  // namespace marlevo::stroke_tree
