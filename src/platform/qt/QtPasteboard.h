#pragma once

#include "platform/Pasteboard.h"

namespace marlevo {

/// The desktop's clipboard through Qt. Other programs get the picture as PNG or in any other format
/// that Qt writes, encoded when they ask. At the program's end Qt hands the contents to the
/// clipboard manager, if one runs.
class QtPasteboard final : public Pasteboard {
public:
    void setImage(const RasterImage& picture) override;
};

}  // namespace marlevo
