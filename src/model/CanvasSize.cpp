#include "model/CanvasSize.h"

namespace marlevo {

const std::vector<CanvasSize::Preset>& CanvasSize::presets() {
    static const std::vector<Preset> all = {
        {Uuid::random(), "Square 1:1 (1080\u00D71080)", {1080, 1080}},
        {Uuid::random(), "HD 16:9 (1280\u00D7720)", {1280, 720}},
        {Uuid::random(), "Full HD 16:9 (1920\u00D71080)", {1920, 1080}},
        {Uuid::random(), "4K 16:9 (3840\u00D72160)", {3840, 2160}},
        {Uuid::random(), "A4 Portrait (2480\u00D73508)", {2480, 3508}},
        {Uuid::random(), "A4 Landscape (3508\u00D72480)", {3508, 2480}},
    };
    return all;
}

}  // namespace marlevo
