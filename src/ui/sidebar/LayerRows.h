#pragma once

#include "ui/controls/FocusGroup.h"
#include "ui/sidebar/LateFollower.h"
#include "ui/sidebar/LayerRow.h"

#include <QVBoxLayout>

#include <optional>
#include <vector>

namespace marlevo {

class DrawingDocument;
class ImageCache;

/// The list of layers, the top one first: one Tab stop, and the eye of its row another. It shows
/// changes once the event that made them is over, and keeps the row of a layer that moves.
class LayerRows final : public QWidget {
    Q_OBJECT

public:
    /// The document and the cache must outlive the list.
    LayerRows(DrawingDocument& document, ImageCache& images, QWidget* parent = nullptr);

    /// As listed: the highest layer first.
    const std::vector<LayerRow*>& rows() const { return rows_; }

    /// The row of the active layer, or of the topmost layer when none is active.
    void focusActiveRow();

private:
    void showLayers();
    void matchRows();
    LayerRow* makeRow(const Uuid& layerID);
    void putRowsInOrder();
    LayerRow& activeRow() const;
    std::optional<std::int64_t> indexOf(const LayerRow& row) const;

    DrawingDocument& document_;
    ImageCache& images_;
    QVBoxLayout* layout_;
    std::vector<LayerRow*> rows_;
    FocusGroup focusGroup_;
    LateFollower follower_;
};

}  // namespace marlevo
