#include "model/DrawingDocument.h"
#include "platform/MainQueue.h"
#include "platform/Printer.h"

#include <string>

namespace marlevo {

namespace {

std::string jobTitle(const std::optional<std::filesystem::path>& file) {
    return file ? file->filename().string() : "Marlevo";
}

}  // namespace

void DrawingDocument::printDocument() {
    if (services_.printer == nullptr || services_.mainQueue == nullptr) return;
    auto picture = renderCGImage();
    if (!picture) return;
    // The document may be gone when the queue comes to it.
    services_.mainQueue->post(
        [printer = services_.printer, picture = *std::move(picture),
         size = Size{canvasSize->width, canvasSize->height},
         title = jobTitle(currentFileURL)] { printer->print(picture, size, title); });
}

}  // namespace marlevo
