#pragma once

#include "graphics/RasterImage.h"
#include "graphics/Size.h"

#include <string>

namespace marlevo {

/// The desktop's way to paper.
class Printer {
public:
    virtual ~Printer() = default;

    /// Shows the print dialog without blocking and, when the user agrees, prints the picture at
    /// `size` points, centred on one page; a larger one is scaled down to what the page can show.
    /// The outcome is not reported.
    virtual void print(const RasterImage& picture, Size size, const std::string& jobTitle) = 0;
};

}  // namespace marlevo
