#pragma once

namespace marlevo {

/// An extent, or a movement if it is called a translation. May be negative or not finite if it was
/// read from a file.
struct Size {
    double width = 0;
    double height = 0;

    friend bool operator==(const Size&, const Size&) = default;
};

}  // namespace marlevo
