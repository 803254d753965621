#pragma once

#include "graphics/Color.h"
#include "model/CanvasSize.h"
#include "model/LayerList.h"

namespace marlevo {

class DrawingDocument;
struct DocumentData;

/// What a file holds of a document at one moment. Takes no time to make: the layers are shared.
struct DocumentSnapshot {
    CanvasSize canvasSize;
    Color backgroundColor;
    bool backgroundIsTransparent = false;
    LayerList layers;
};

DocumentSnapshot snapshotOf(const DrawingDocument& document);

/// The picture as records for a file. Takes little time: points and images are shared.
DocumentData encodeDocumentData(const DocumentSnapshot& snapshot);
DocumentData encodeDocumentData(const DrawingDocument& document);

/// Replaces the document's picture, sets the zoom to 1, makes the lowest layer active and starts a
/// new history. Tools, selection and file stay; every layer gets a new identity.
void applyDocumentData(DrawingDocument& document, const DocumentData& data);

}  // namespace marlevo
