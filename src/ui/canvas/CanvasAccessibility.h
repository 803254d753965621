#pragma once

#include "model/Follower.h"

#include <QTimer>

class QWidget;

namespace marlevo {

class DrawingDocument;

/// Presents drawing areas, status bars and canvas views to assistive technology. A canvas is
/// described by its size, the chosen tools and the number of strokes at the time of the query.
/// Must be called before the first of them is shown; further calls do nothing.
void installCanvasAccessibility();

/// Notifies assistive technology, if any is active, that the description of a canvas may have
/// changed: once for all changes within 0.2 s.
class CanvasDescriptionChanges final {
public:
    /// The document and the canvas must outlive the object.
    CanvasDescriptionChanges(DrawingDocument& document, QWidget& canvas);

private:
    QTimer soon_;
    Follower follower_;
};

}  // namespace marlevo
