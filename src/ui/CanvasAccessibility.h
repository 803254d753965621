#pragma once

#include "ui/Follower.h"

#include <QTimer>

class QWidget;

namespace marlevo {

/// Makes assistive technology see canvas views as canvases, described by their size, the chosen
/// tool and the number of strokes as they are when asked for. To be called once, before the first
/// of them is shown; further calls do nothing.
void installCanvasAccessibility();

/// Tells assistive technology, while there is any, when a canvas's description may be another one:
/// a little later, once for all changes until then.
class CanvasDescriptionChanges final {
public:
    /// The document and the canvas must outlive the object.
    CanvasDescriptionChanges(DrawingDocument& document, QWidget& canvas);

private:
    QTimer soon_;
    Follower follower_;
};

}  // namespace marlevo
