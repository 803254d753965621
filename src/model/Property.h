#pragma once

#include "model/Observation.h"

#include <utility>

namespace marlevo {

/// When assigning a property publishes to its readers.
enum class Publishing : unsigned char {
    onDifference,  ///< only when the new value differs from the old one
    always,
};

/// One stored property of a document. Reading it while a reader observes makes that reader depend
/// on it; assigning it publishes, synchronously, after the value is stored.
template <typename T, DocumentProperty id, Publishing publishing = Publishing::onDifference>
class Property {
public:
    Property(ChangeRegistry& registry, T initial)
        : registry_(&registry), value_(std::move(initial)) {}
    Property(const Property&) = delete;
    Property& operator=(const Property&) = delete;

    const T& get() const {
        registry_->noteRead(id);
        return value_;
    }
    operator const T&() const { return get(); }
    const T& operator*() const { return get(); }
    const T* operator->() const { return &get(); }

    Property& operator=(T value) {
        if constexpr (publishing == Publishing::onDifference) {
            if (value == value_) {
                value_ = std::move(value);
                return *this;
            }
        }
        value_ = std::move(value);
        registry_->publish(id);
        return *this;
    }

    /// Changes the value in place, then publishes, also if the value is as before.
    template <typename Change>
    void modifyAndPublish(Change&& change) {
        std::forward<Change>(change)(value_);
        registry_->publish(id);
    }

private:
    ChangeRegistry* registry_;
    T value_;
};

}  // namespace marlevo
