#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace marlevo {

/// The first two layouts of the keyboard as the X server has them, read when the object is made.
/// Without an X server both are unknown.
///
/// Keys are given by their X11 codes, layouts by their number from 0.
class KeyboardLayouts {
public:
    KeyboardLayouts();

    /// Whether the layout has Latin letters; absent if it is unknown.
    std::optional<bool> isLatin(std::uint32_t layout) const;

    /// The character of the key in the first layout with Latin letters, in ASCII and upper case; 0
    /// without such a layout or character.
    char latinCharacter(std::uint32_t code) const;

private:
    char characterOf(std::uint32_t code, std::size_t layout) const;

    static constexpr std::size_t count = 2;

    std::uint32_t firstCode_ = 0;
    std::size_t symbolsPerKey_ = 0;
    std::vector<std::uint32_t> symbols_;
    std::array<bool, count> isLatin_{};
};

}  // namespace marlevo
