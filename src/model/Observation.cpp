#include "model/Observation.h"

#include <utility>

namespace marlevo {

/// Where a publish stands in the list of readers.
struct ChangeRegistry::Cursor {
    Reader* next;
    Cursor* outer;
};

ChangeRegistry::~ChangeRegistry() {
    for (Reader* reader = first_; reader; reader = reader->next_)
        reader->registry_ = nullptr;
}

void ChangeRegistry::publish(DocumentProperty property) {
    // Readers come at the front, behind every cursor, so a publish never meets one that is newer.
    Cursor cursor{first_, cursors_};
    cursors_ = &cursor;
    while (Reader* reader = cursor.next) {
        cursor.next = reader->next_;
        if (!(reader->dependencies_ & dependencyBit(property))) continue;
        // The callback may end its reader and must survive that.
        const std::shared_ptr<const Reader::Callback> onChange = reader->onChange_;
        (*onChange)(property);
    }
    cursors_ = cursor.outer;
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

Reader::RenderScope::RenderScope(Reader& reader) : registry_(reader.registry_), outer_(nullptr) {
    reader.dependencies_ = 0;
    if (registry_) outer_ = std::exchange(registry_->rendering_, &reader);
}

Reader::RenderScope::~RenderScope() {
    if (registry_) registry_->rendering_ = outer_;
}

}  // namespace marlevo
