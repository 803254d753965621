#pragma once

#include "model/Follower.h"
#include "ui/sidebar/LayerRow.h"

#include <QVBoxLayout>

#include <vector>

namespace marlevo {

class DrawingDocument;
class ImageCache;

/// The list of layers, the top one first.
class LayerRows final : public QWidget {
    Q_OBJECT

public:
    /// The document and the cache must outlive the list.
    LayerRows(DrawingDocument& document, ImageCache& images, QWidget* parent = nullptr);

    /// As listed: the highest layer first.
    const std::vector<LayerRow*>& rows() const { return rows_; }

private:
    void showLayers();
    void matchRows();
    LayerRow* makeRow(const Uuid& layerID);
    void putRowsInOrder();
    std::int64_t indexOf(const LayerRow& row) const;

    DrawingDocument& document_;
    ImageCache& images_;
    QVBoxLayout* layout_;
    std::vector<LayerRow*> rows_;
    Follower follower_;
};

}  // namespace marlevo
