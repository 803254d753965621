#pragma once

#include "graphics/RasterImage.h"

namespace marlevo {

/// What the user copied last, shared by all programs of the desktop.
class Pasteboard {
public:
    virtual ~Pasteboard() = default;

    /// Replaces the contents by the picture, offered in the forms that an ImageCodec writes.
    virtual void setImage(const RasterImage& picture) = 0;
};

}  // namespace marlevo
