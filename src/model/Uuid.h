#pragma once

#include <array>
#include <cstdint>
#include <functional>

namespace marlevo {

/// A random 128-bit identifier (RFC 4122, version 4).
class Uuid {
public:
    /// A fresh one; never equal to another in practice.
    static Uuid random();

    friend bool operator==(const Uuid&, const Uuid&) = default;

    std::size_t hash() const {
        return static_cast<std::size_t>(halves_[0] ^ (halves_[1] * 0x9E3779B97F4A7C15ULL));
    }

private:
    Uuid() = default;
    std::array<std::uint64_t, 2> halves_{};
};

}  // namespace marlevo

template <>
struct std::hash<marlevo::Uuid> {
    std::size_t operator()(const marlevo::Uuid& id) const noexcept { return id.hash(); }
};
