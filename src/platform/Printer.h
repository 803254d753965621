#pragma once

#include "graphics/RasterImage.h"
#include "graphics/Size.h"

#include <string>

namespace marlevo {

/// Prints on the desktop's printers.
class Printer {
public:
    virtual ~Printer() = default;

    /// Shows the print dialog without blocking. If the user confirms, prints the picture at `size`
    /// points, centred on one page, or scaled down to the printable area if it is larger. Errors
    /// are not reported.
    virtual void print(const RasterImage& picture, Size size, const std::string& jobTitle) = 0;
};

}  // namespace marlevo
