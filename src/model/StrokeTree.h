#pragma once

#include "model/Ref.h"
#include "model/Stroke.h"
#include "model/StrokeSummary.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <span>

/// The nodes that StrokeList is made of; of no use to anybody else.
///
/// All leaves lie at the same depth. Nodes are only ever made by appending, which fills them, and
/// thinned by erasing, which removes those that become empty and leaves the others where they are:
/// what one erase touches is one path, and every other node stays shared.
namespace marlevo::stroke_tree {

inline constexpr std::size_t fanOut = 32;

struct Record : RefCounted {
    explicit Record(Stroke initial)
        : stroke(std::move(initial)), summary(StrokeSummary::of(stroke)) {}

    void replace(Stroke other) {
        stroke = std::move(other);
        summary = StrokeSummary::of(stroke);
    }

    Stroke stroke;
    StrokeSummary summary;  ///< so that a search need not go to the points
};

struct Node : RefCounted {
    explicit Node(unsigned nodeHeight) : height(nodeHeight) {}
    Node(const Node&) = default;
    virtual ~Node() = default;

    bool isLeaf() const { return height == 0; }

    const std::uint32_t height;  ///< levels below; a leaf's is 0
    StrokeSummary summary;       ///< of all strokes below
};

/// Up to `fanOut` strokes. While it is the open end of a list it may be shared by versions of that
/// list which know different numbers of its strokes; its summary is then not yet used. A slot that
/// one version has filled is never written again, so the others need not know.
struct Leaf : Node {
    Leaf() : Node(0) {}
    explicit Leaf(std::span<const Ref<Record>> initial);
    Leaf(const Leaf& other) : Leaf(other.records()) { summary = other.summary; }

    std::span<const Ref<Record>> records() const { return {slots.data(), filled}; }

    /// Puts the record behind the first `known` ones unless the slot is taken or there is none.
    bool appendAfter(std::size_t known, const Ref<Record>& record);
    void erase(std::size_t at);
    void truncate(std::size_t size);
    void summarise();

    std::atomic<std::size_t> filled = 0;
    std::array<Ref<Record>, fanOut> slots;
};

struct Branch : Node {
    explicit Branch(unsigned nodeHeight) : Node(nodeHeight) {}

    std::span<const Ref<Node>> nodes() const { return {children.data(), childCount}; }
    Ref<Node>& last() { return children[childCount - 1]; }
    const Ref<Node>& last() const { return children[childCount - 1]; }

    void append(Ref<Node> child) { children[childCount++] = std::move(child); }
    void erase(std::size_t at);
    void summarise();

    std::size_t childCount = 0;
    std::array<Ref<Node>, fanOut> children;
};

inline Leaf& asLeaf(Node& node) { return static_cast<Leaf&>(node); }
inline const Leaf& asLeaf(const Node& node) { return static_cast<const Leaf&>(node); }
inline Branch& asBranch(Node& node) { return static_cast<Branch&>(node); }
inline const Branch& asBranch(const Node& node) { return static_cast<const Branch&>(node); }

/// The strokes from an index to the end of their leaf.
std::span<const Ref<Record>> recordsFrom(const Node& root, std::size_t index);

/// Appends a leaf that is complete; the root may be absent.
void appendLeaf(Ref<Node>& root, Ref<Node> leaf);

/// Removes a stroke; the root is absent afterwards if that was the last.
void erase(Ref<Node>& root, std::size_t index);

void replace(Ref<Node>& root, std::size_t index, Stroke stroke);

/// Gives the record to this owner alone, then changes its stroke.
void replace(Ref<Record>& record, Stroke stroke);

/// Shows `visitor` the strokes below the node in order, leaving out every subtree and every stroke
/// whose summary `matters` refuses; `index` is that of the node's first stroke. Ends early, with
/// false, when the visitor answers false.
template <typename Predicate, typename Visitor>
bool visit(std::span<const Ref<Record>> records, std::size_t index, const Predicate& matters,
           Visitor& visitor) {
    // A search mostly waits for records that lie anywhere in memory; together they come faster.
    for (const Ref<Record>& record : records)
        __builtin_prefetch(&record->summary);
    for (const Ref<Record>& record : records) {
        if (matters(record->summary) && !visitor(index, record->stroke)) return false;
        ++index;
    }
    return true;
}

template <typename Predicate, typename Visitor>
bool visit(const Node& node, std::size_t index, const Predicate& matters, Visitor& visitor) {
    if (!matters(node.summary)) return true;
    if (node.isLeaf()) return visit(asLeaf(node).records(), index, matters, visitor);
    for (const Ref<Node>& child : asBranch(node).nodes()) {
        if (!visit(*child, index, matters, visitor)) return false;
        index += child->summary.count;
    }
    return true;
}

}  // namespace marlevo::stroke_tree
