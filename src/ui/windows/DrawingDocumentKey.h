#pragma once

namespace marlevo {

class DrawingDocument;

/// The focused value `drawingDocument`: the document of the document window with the focus, or
/// null. Commands of the whole application act on it.
class DrawingDocumentKey final {
public:
    DrawingDocument* get() const { return document_; }

    /// Null without a focused document. Otherwise the document must exist until the next call.
    void set(DrawingDocument* document) { document_ = document; }

private:
    DrawingDocument* document_ = nullptr;
};

}  // namespace marlevo
