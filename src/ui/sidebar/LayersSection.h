#pragma once

#include "ui/controls/IconButton.h"
#include "ui/sidebar/LateFollower.h"
#include "ui/sidebar/LayerRows.h"

namespace marlevo {

class DrawingDocument;
class ImageCache;

/// The list of layers and the buttons that change it.
class LayersSection final : public QWidget {
    Q_OBJECT

public:
    /// The document and the cache must outlive the section.
    LayersSection(DrawingDocument& document, ImageCache& images, QWidget* parent = nullptr);

private:
    void showButtons();

    DrawingDocument& document_;
    LayerRows rows_;
    IconButton add_;
    IconButton delete_;
    IconButton moveUp_;
    IconButton moveDown_;
    LateFollower buttonsFollower_;
};

}  // namespace marlevo
