#include "model/CanvasSize.h"

#include "platform/Strings.h"

namespace marlevo {

const std::vector<CanvasSize::Preset>& CanvasSize::presets() {
    static const std::vector<Preset> all = {
        {Uuid::random(), translatable("Presets", "Square 1:1 (1080×1080)"), {1080, 1080}},
        {Uuid::random(), translatable("Presets", "HD 16:9 (1280×720)"), {1280, 720}},
        {Uuid::random(), translatable("Presets", "Full HD 16:9 (1920×1080)"), {1920, 1080}},
        {Uuid::random(), translatable("Presets", "4K 16:9 (3840×2160)"), {3840, 2160}},
        {Uuid::random(), translatable("Presets", "A4 Portrait (2480×3508)"), {2480, 3508}},
        {Uuid::random(), translatable("Presets", "A4 Landscape (3508×2480)"), {3508, 2480}},
    };
    return all;
}

}  // namespace marlevo
