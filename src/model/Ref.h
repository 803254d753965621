#pragma once

#include <atomic>
#include <cstdint>
#include <utility>

namespace marlevo {

/// Base of values that Ref shares. The count is not part of the value: a copy starts alone.
class RefCounted {
public:
    RefCounted() = default;
    RefCounted(const RefCounted&) : RefCounted() {}
    RefCounted& operator=(const RefCounted&) { return *this; }

private:
    template <typename T>
    friend class Ref;

    std::atomic<std::uint32_t> owners_{1};
};

/// Shared ownership of a RefCounted value, or of none; one pointer wide.
///
/// Owners may live on different threads. What they share must not change, except by an owner that
/// is alone: isUnique() then also makes what former owners did visible to this one, which
/// std::shared_ptr's use_count() does not.
template <typename T>
class Ref {
public:
    Ref() = default;

    template <typename... Args>
    static Ref make(Args&&... args) {
        return Ref(new T(std::forward<Args>(args)...));
    }

    Ref(const Ref& other) : target_(other.target_) {
        if (target_) target_->owners_.fetch_add(1, std::memory_order_relaxed);
    }
    Ref(Ref&& other) noexcept : target_(std::exchange(other.target_, nullptr)) {}

    /// An owner of a derived type becomes one of its base, which needs a virtual destructor.
    template <typename Derived>
    Ref(Ref<Derived> other) noexcept : target_(std::exchange(other.target_, nullptr)) {}

    ~Ref() {
        if (target_ && target_->owners_.fetch_sub(1, std::memory_order_acq_rel) == 1)
            delete target_;
    }
    Ref& operator=(Ref other) noexcept {
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

    friend bool operator==(const Ref& a, const Ref& b) { return a.target_ == b.target_; }

private:
    template <typename U>
    friend class Ref;

    explicit Ref(T* target) : target_(target) {}

    T* target_ = nullptr;
};

}  // namespace marlevo
