#include "model/DrawingDocument.h"
#include "platform/Pasteboard.h"

namespace marlevo {

void DrawingDocument::copyToClipboard() {
    if (services_.pasteboard == nullptr) return;
    if (const auto picture = renderCGImage()) services_.pasteboard->setImage(*picture);
}

}  // namespace marlevo
