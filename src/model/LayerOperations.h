#pragma once

namespace marlevo {

class DrawingDocument;

// Commands on a document's active layer. Where one does not apply it changes nothing.

/// Never deletes the last layer.
void deleteActiveLayer(DrawingDocument& document);

/// Up is towards the end of the list, which is drawn over the others.
void moveActiveLayerUp(DrawingDocument& document);
void moveActiveLayerDown(DrawingDocument& document);

}  // namespace marlevo
