#pragma once

#include <utility>

namespace marlevo {

/// Gives a variable a value for the lifetime of this object, whose destructor restores the value
/// before. So an exception restores it, too.
template <typename T>
class ScopedValue {
public:
    ScopedValue(T& variable, T value)
        : variable_(variable), before_(std::exchange(variable, std::move(value))) {}
    ~ScopedValue() { variable_ = std::move(before_); }
    ScopedValue(const ScopedValue&) = delete;
    ScopedValue& operator=(const ScopedValue&) = delete;

private:
    T& variable_;
    T before_;
};

}  // namespace marlevo
