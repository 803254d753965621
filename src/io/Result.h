#pragma once

#include <string>
#include <utility>
#include <variant>

namespace marlevo {

/// Why something could not be done, in one line for the user.
struct Failure {
    std::string text;
};

/// The outcome of an operation that can fail: its value, or the reason why there is none.
template <typename T>
class [[nodiscard]] Result {
public:
    Result(T value) : outcome_(std::in_place_index<0>, std::move(value)) {}
    Result(Failure failure) : outcome_(std::in_place_index<1>, std::move(failure)) {}

    bool isOk() const { return outcome_.index() == 0; }
    explicit operator bool() const { return isOk(); }

    /// Only when isOk().
    T& operator*() { return *std::get_if<0>(&outcome_); }
    const T& operator*() const { return *std::get_if<0>(&outcome_); }
    T* operator->() { return std::get_if<0>(&outcome_); }
    const T* operator->() const { return std::get_if<0>(&outcome_); }

    /// Only when not isOk().
    const std::string& error() const { return std::get_if<1>(&outcome_)->text; }

private:
    std::variant<T, Failure> outcome_;
};

}  // namespace marlevo
