#pragma once

namespace marlevo {

class DrawingDocument;

/// What the focused value `drawingDocument` is kept under: the document of the document window with
/// the focus, or none. What belongs to the application as a whole acts on it.
class DrawingDocumentKey final {
public:
    DrawingDocument* get() const { return document_; }

    /// Null for none. The document must outlive its time here.
    void set(DrawingDocument* document) { document_ = document; }

private:
    DrawingDocument* document_ = nullptr;
};

}  // namespace marlevo
