#pragma once

#include <QObject>

namespace marlevo {

class DrawingDocument;

/// What the focused value `drawingDocument` is kept under: the document of the frontmost document
/// window, or none. The menu commands act on it.
class DrawingDocumentKey final : public QObject {
    Q_OBJECT

public:
    DrawingDocument* get() const { return document_; }

    /// Null for none. Whoever sets a document sets another before it goes.
    void set(DrawingDocument* document);

Q_SIGNALS:
    void changed();

private:
    DrawingDocument* document_ = nullptr;
};

}  // namespace marlevo
