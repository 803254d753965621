#pragma once

#include <atomic>
#include <cstdint>
#include <utility>

namespace marlevo {

/// Base of values that IntrusivePtr shares. The count is not part of the value: a copy starts
/// alone.
class RefCounted {
public:
    RefCounted() = default;
    RefCounted(const RefCounted&) : RefCounted() {}
    RefCounted& operator=(const RefCounted&) { return *this; }

private:
    template <typename T>
    friend class IntrusivePtr;

    std::atomic<std::uint32_t> owners_{1};
};

/// Shared ownership of a RefCounted value, or null. Has the size of a pointer.
///
/// Owners may be on different threads. The shared value must not change, except through its only
/// owner: isUnique() synchronises with the release by former owners, which std::shared_ptr's
/// use_count() does not.
template <typename T>
class IntrusivePtr {
public:
    IntrusivePtr() = default;

    template <typename... Args>
    static IntrusivePtr make(Args&&... args) {
        return IntrusivePtr(new T(std::forward<Args>(args)...));
    }

    IntrusivePtr(const IntrusivePtr& other) : target_(other.target_) {
        if (target_) target_->owners_.fetch_add(1, std::memory_order_relaxed);
    }
    IntrusivePtr(IntrusivePtr&& other) noexcept : target_(std::exchange(other.target_, nullptr)) {}

    /// Converts to a pointer to a base, which needs a virtual destructor.
    template <typename Derived>
    IntrusivePtr(IntrusivePtr<Derived> other) noexcept
        : target_(std::exchange(other.target_, nullptr)) {}

    ~IntrusivePtr() {
        if (target_ && target_->owners_.fetch_sub(1, std::memory_order_acq_rel) == 1)
            delete target_;
    }
    IntrusivePtr& operator=(IntrusivePtr other) noexcept {
        std::swap(target_, other.target_);
        return *this;
    }

    T* get() const { return target_; }
    T& operator*() const { return *target_; }
    T* operator->() const { return target_; }
    explicit operator bool() const { return target_ != nullptr; }

    /// True when there is no other owner.
    bool isUnique() const {
        return target_ && target_->owners_.load(std::memory_order_acquire) == 1;
    }

    friend bool operator==(const IntrusivePtr& a, const IntrusivePtr& b) {
        return a.target_ == b.target_;
    }

private:
    template <typename U>
    friend class IntrusivePtr;

    explicit IntrusivePtr(T* target) : target_(target) {}

    T* target_ = nullptr;
};

}  // namespace marlevo
