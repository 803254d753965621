#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace marlevo {

/// Reads numbers from bytes. A position beyond their end is allowed and reads as 0.
class ByteReader {
public:
    enum class Order : unsigned char { bigEndian, littleEndian };

    explicit ByteReader(std::span<const std::uint8_t> bytes, Order order = Order::bigEndian)
        : bytes_(bytes), order_(order) {}

    std::size_t size() const { return bytes_.size(); }
    std::uint8_t byte(std::size_t at) const { return at < bytes_.size() ? bytes_[at] : 0; }

    std::uint16_t half(std::size_t at) const {
        const unsigned first = byte(at);
        const unsigned second = byte(at + 1);
        return static_cast<std::uint16_t>(order_ == Order::bigEndian ? first << 8 | second
                                                                     : second << 8 | first);
    }
    std::uint32_t word(std::size_t at) const {
        const std::uint32_t first = half(at);
        const std::uint32_t second = half(at + 2);
        return order_ == Order::bigEndian ? first << 16 | second : second << 16 | first;
    }

    bool hasText(std::size_t at, std::string_view text) const {
        if (at > size() || text.size() > size() - at) return false;
        for (std::size_t i = 0; i < text.size(); ++i)
            if (bytes_[at + i] != static_cast<std::uint8_t>(text[i])) return false;
        return true;
    }

    /// A reader of the bytes from `at` on, with the same byte order. Empty beyond the end.
    ByteReader from(std::size_t at) const {
        return ByteReader(at < size() ? bytes_.subspan(at) : bytes_.first(0), order_);
    }
    ByteReader in(Order order) const { return ByteReader(bytes_, order); }
    std::span<const std::uint8_t> bytes() const { return bytes_; }

private:
    std::span<const std::uint8_t> bytes_;
    Order order_;
};

}  // namespace marlevo
