#include "ui/FocusedDocument.h"

namespace marlevo {

void FocusedDocument::set(DrawingDocument* document) {
    if (document == document_) return;
    document_ = document;
    Q_EMIT changed();
}

}  // namespace marlevo
