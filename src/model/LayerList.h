#pragma once

#include "model/IntrusivePtr.h"
#include "model/Layer.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <vector>

namespace marlevo {

/// The layers of a picture; index 0 is the lowest and drawn first. A sequence with value semantics
/// whose copies share every unchanged layer, so that a step of the history costs one pointer per
/// layer. There may be hundreds, because each fill adds one.
///
/// Reading through a const list, or through its iterators, never unshares. Indices must be valid;
/// references to layers are valid until the list changes.
class LayerList {
    struct Entry : RefCounted {
        explicit Entry(Layer initial) : layer(std::move(initial)) {}
        Layer layer;
    };
    using Entries = std::vector<IntrusivePtr<Entry>>;

public:
    /// Visits a list in both directions. A change of the list invalidates it.
    class Iterator {
    public:
        using value_type = Layer;
        using difference_type = std::ptrdiff_t;

        Iterator() = default;
        explicit Iterator(Entries::const_iterator entry) : entry_(entry) {}

        const Layer& operator*() const { return (*entry_)->layer; }
        const Layer* operator->() const { return &**this; }
        Iterator& operator++() { return ++entry_, *this; }
        Iterator& operator--() { return --entry_, *this; }
        Iterator operator++(int) { return Iterator(entry_++); }
        Iterator operator--(int) { return Iterator(entry_--); }
        friend bool operator==(const Iterator&, const Iterator&) = default;

    private:
        Entries::const_iterator entry_;
    };
    using value_type = Layer;
    using const_iterator = Iterator;

    LayerList() = default;
    LayerList(std::initializer_list<Layer> layers) {
        for (const Layer& layer : layers)
            push_back(layer);
    }

    std::size_t size() const { return layers_.size(); }
    bool empty() const { return layers_.empty(); }

    const Layer& operator[](std::size_t index) const { return layers_[index]->layer; }
    const Layer& front() const { return layers_.front()->layer; }
    const Layer& back() const { return layers_.back()->layer; }
    Iterator begin() const { return Iterator(layers_.begin()); }
    Iterator end() const { return Iterator(layers_.end()); }
    auto rbegin() const { return std::reverse_iterator(end()); }
    auto rend() const { return std::reverse_iterator(begin()); }

    /// For changes: a shared layer is copied first.
    Layer& operator[](std::size_t index) {
        IntrusivePtr<Entry>& entry = layers_[index];
        if (!entry.isUnique()) entry = IntrusivePtr<Entry>::make(*entry);
        return entry->layer;
    }
    Layer& back() { return (*this)[size() - 1]; }

    void push_back(Layer layer) { layers_.push_back(IntrusivePtr<Entry>::make(std::move(layer))); }
    void insert(std::size_t index, Layer layer) {
        layers_.insert(layers_.begin() + index, IntrusivePtr<Entry>::make(std::move(layer)));
    }
    void erase(std::size_t index) { layers_.erase(layers_.begin() + index); }

private:
    Entries layers_;
};

static_assert(std::bidirectional_iterator<LayerList::Iterator>);

/// True if a layer has the index. Any number is allowed, also a negative one.
inline bool isValidIndex(std::int64_t index, const LayerList& layers) {
    return index >= 0 && index < std::ssize(layers);
}

/// The number of strokes in all layers, hidden ones too.
inline std::size_t strokeCount(const LayerList& layers) {
    std::size_t count = 0;
    for (const Layer& layer : layers)
        count += layer.strokes.size();
    return count;
}

}  // namespace marlevo
