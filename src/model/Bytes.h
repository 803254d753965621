#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace marlevo {

/// An immutable byte string; copies share it.
class Bytes {
public:
    explicit Bytes(std::vector<std::uint8_t> bytes)
        : bytes_(std::make_shared<const std::vector<std::uint8_t>>(std::move(bytes))) {}

    std::span<const std::uint8_t> span() const { return *bytes_; }
    std::size_t size() const { return bytes_->size(); }

    /// True if both share one block and so are equal. Takes constant time.
    bool sharesWith(const Bytes& other) const { return bytes_ == other.bytes_; }

    friend bool operator==(const Bytes& a, const Bytes& b) {
        return a.bytes_ == b.bytes_ || *a.bytes_ == *b.bytes_;
    }

private:
    std::shared_ptr<const std::vector<std::uint8_t>> bytes_;
};

}  // namespace marlevo
