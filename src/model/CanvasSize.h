#pragma once

#include "model/Uuid.h"

#include <string>
#include <vector>

namespace marlevo {

/// The extent of a picture in canvas pixels. A file may contain any value: 0, negative or huge.
struct CanvasSize {
    struct Preset;

    double width = 0;
    double height = 0;

    friend bool operator==(const CanvasSize&, const CanvasSize&) = default;

    /// The sizes that the program proposes, in the order shown. Built on first use, with fresh ids.
    static const std::vector<Preset>& presets();
};

struct CanvasSize::Preset {
    Uuid id;
    std::string name;
    CanvasSize size;
};

}  // namespace marlevo
