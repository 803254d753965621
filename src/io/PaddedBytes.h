#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

namespace marlevo {

/// A file's contents with readable bytes behind them, for parsers that read whole vectors.
class PaddedBytes {
public:
    static constexpr std::size_t padding = 64;

    /// The caller must fill the contents. The padding is zero.
    explicit PaddedBytes(std::size_t size);

    explicit PaddedBytes(std::span<const std::uint8_t> contents) : PaddedBytes(contents.size()) {
        std::copy(contents.begin(), contents.end(), data_.get());
    }

    explicit PaddedBytes(std::string_view text)
        : PaddedBytes(std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size())) {}

    std::size_t size() const { return size_; }
    std::span<std::uint8_t> span() { return {data_.get(), size_}; }
    std::span<const std::uint8_t> span() const { return {data_.get(), size_}; }
    std::string_view text() const { return {reinterpret_cast<const char*>(data_.get()), size_}; }

private:
    std::unique_ptr<std::uint8_t[], void (*)(void*)> data_;
    std::size_t size_;
};

}  // namespace marlevo
