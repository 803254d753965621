#pragma once

#include <string>
#include <utility>
#include <variant>

namespace marlevo {

/// The reason why an operation failed, in one line for the user.
struct Failure {
    std::string text;
};

/// A failure that converts to any Result.
class Unexpected {
public:
    explicit Unexpected(Failure failure) : error_(std::move(failure)) {}

    Failure&& error() && { return std::move(error_); }

private:
    Failure error_;
};

/// The outcome of an operation that can fail: its value or a Failure.
///
/// C++23 has both types: Result<T> is std::expected<T, Failure> and Unexpected is
/// std::unexpected<Failure>, reduced to the members that this program uses. They can be replaced by
/// aliases of these.
template <typename T>
class [[nodiscard]] Result {
public:
    Result(T value) : outcome_(std::in_place_index<0>, std::move(value)) {}
    Result(Unexpected failure) : outcome_(std::in_place_index<1>, std::move(failure).error()) {}

    bool has_value() const { return outcome_.index() == 0; }
    explicit operator bool() const { return has_value(); }

    /// Requires has_value().
    T& operator*() & { return *std::get_if<0>(&outcome_); }
    const T& operator*() const& { return *std::get_if<0>(&outcome_); }
    T&& operator*() && { return std::move(*std::get_if<0>(&outcome_)); }
    T* operator->() { return std::get_if<0>(&outcome_); }
    const T* operator->() const { return std::get_if<0>(&outcome_); }

    /// Requires !has_value().
    const Failure& error() const { return *std::get_if<1>(&outcome_); }

private:
    std::variant<T, Failure> outcome_;
};

}  // namespace marlevo
