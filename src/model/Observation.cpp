#include "model/Observation.h"

#include "model/ScopedValue.h"

#include <utility>

namespace marlevo {

/// The position of a publish in the list of readers.
struct ChangeRegistry::Cursor {
    Reader* next;
    Cursor* outer;
};

ChangeRegistry::~ChangeRegistry() {
    for (Reader* reader = first_; reader; reader = reader->next_)
        reader->registry_ = nullptr;
}

void ChangeRegistry::publish(DocumentProperty property) {
    // New readers are added at the front. A cursor moves to the end, so it never reaches them.
    Cursor cursor{first_, cursors_};
    const ScopedValue publishing(cursors_, &cursor);
    while (Reader* reader = cursor.next) {
        cursor.next = reader->next_;
        if (!(reader->dependencies_ & dependencyBit(property))) continue;
        // Shared, because the callback may destroy its reader.
        const std::shared_ptr<const Reader::Callback> onChange = reader->onChange_;
        (*onChange)(property);
    }
}

Reader::Reader(ChangeRegistry& registry, Callback onChange)
    : registry_(&registry), onChange_(std::make_shared<const Callback>(std::move(onChange))),
      next_(registry.first_) {
    if (next_) next_->previous_ = this;
    registry.first_ = this;
}

Reader::~Reader() {
    if (!registry_) return;
    for (auto* cursor = registry_->cursors_; cursor; cursor = cursor->outer)
        if (cursor->next == this) cursor->next = next_;
    (previous_ ? previous_->next_ : registry_->first_) = next_;
    if (next_) next_->previous_ = previous_;
}

Reader::ObservingScope::ObservingScope(Reader& reader)
    : registry_(reader.registry_), outer_(nullptr) {
    reader.dependencies_ = 0;
    if (registry_) outer_ = std::exchange(registry_->observing_, &reader);
}

Reader::ObservingScope::~ObservingScope() {
    if (registry_) registry_->observing_ = outer_;
}

}  // namespace marlevo
