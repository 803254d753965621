#pragma once

#include "model/Follower.h"
#include "ui/controls/IconButton.h"
#include "ui/sidebar/LayerRows.h"

namespace marlevo {

class DrawingDocument;

/// The list of layers and the buttons that change it.
class LayersSection final : public QWidget {
    Q_OBJECT

public:
    /// The document must outlive the section.
    explicit LayersSection(DrawingDocument& document, QWidget* parent = nullptr);

private:
    void showButtons();

    DrawingDocument& document_;
    LayerRows rows_;
    IconButton add_;
    IconButton delete_;
    IconButton moveUp_;
    IconButton moveDown_;
    Follower buttonsFollower_;
};

}  // namespace marlevo
