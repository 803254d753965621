#include "ui/windows/DrawingDocumentKey.h"

namespace marlevo {

void DrawingDocumentKey::set(DrawingDocument* document) {
    if (document == document_) return;
    document_ = document;
    Q_EMIT changed();
}

}  // namespace marlevo
