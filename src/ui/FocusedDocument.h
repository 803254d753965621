#pragma once

#include <QObject>

namespace marlevo {

class DrawingDocument;

/// The document of the frontmost document window, or none: what the menu commands act on.
class FocusedDocument final : public QObject {
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
