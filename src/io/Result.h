#pragma once

#include <string>
#include <utility>
#include <variant>

namespace marlevo {

/// Why something could not be done, in one line for the user.
struct Failure {
    std::string text;
};

/// Marks a failure that becomes a Result, as std::unexpected does.
struct Unexpected {
    explicit Unexpected(Failure reason) : failure(std::move(reason)) {}

    Failure failure;
};

/// The outcome of an operation that can fail: its value, or the reason why there is none.
///
/// A part of the interface of C++23's std::expected, under the same names: std::expected<T,
/// Failure> and std::unexpected<Failure> can take the place of these two types.
template <typename T>
class [[nodiscard]] Result {
public:
    Result(T value) : outcome_(std::in_place_index<0>, std::move(value)) {}
    Result(Unexpected reason) : outcome_(std::in_place_index<1>, std::move(reason.failure)) {}

    bool has_value() const { return outcome_.index() == 0; }
    explicit operator bool() const { return has_value(); }

    /// Only when has_value().
    T& operator*() & { return *std::get_if<0>(&outcome_); }
    const T& operator*() const& { return *std::get_if<0>(&outcome_); }
    T&& operator*() && { return std::move(*std::get_if<0>(&outcome_)); }
    T* operator->() { return std::get_if<0>(&outcome_); }
    const T* operator->() const { return std::get_if<0>(&outcome_); }

    /// Only when not has_value().
    const Failure& error() const { return *std::get_if<1>(&outcome_); }

private:
    std::variant<T, Failure> outcome_;
};

}  // namespace marlevo
