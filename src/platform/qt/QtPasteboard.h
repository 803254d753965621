#pragma once

#include "platform/Pasteboard.h"

namespace marlevo {

/// The desktop's clipboard through Qt. Other programs get the picture as a file in one of the
/// formats of QtImageCodec, encoded on request. At the program's end Qt hands the contents to
/// the clipboard manager, if one runs.
class QtPasteboard final : public Pasteboard {
public:
    void setImage(const RasterImage& picture) override;
};

}  // namespace marlevo
