#pragma once

namespace marlevo {

class DrawingDocument;

// The commands on the active layer. Where there is nothing to do they change nothing.

/// Never deletes the last layer.
void deleteActiveLayer(DrawingDocument& document);

/// Up is towards the end of the list, which is drawn over the others.
void moveActiveLayerUp(DrawingDocument& document);
void moveActiveLayerDown(DrawingDocument& document);

}  // namespace marlevo
