#pragma once

namespace marlevo {

class DrawingDocument;
struct DocumentData;

/// The document's picture as records for a file. Takes little time: points and images are shared.
DocumentData encodeDocumentData(const DrawingDocument& document);

/// Replaces the document's picture, sets the zoom to 1, makes the lowest layer active and starts a
/// new history. Tools, selection and file stay; every layer gets a new identity.
void applyDocumentData(DrawingDocument& document, const DocumentData& data);

}  // namespace marlevo
