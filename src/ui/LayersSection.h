#pragma once

#include "ui/Follower.h"
#include "ui/IconButton.h"
#include "ui/LayerRow.h"

#include <QVBoxLayout>

#include <vector>

namespace marlevo {

/// The list of layers, the top one first, and the buttons that change it.
class LayersSection final : public QWidget {
    Q_OBJECT

public:
    /// The document must outlive the section.
    explicit LayersSection(DrawingDocument& document, QWidget* parent = nullptr);

private:
    void showLayers();
    void matchRows();
    LayerRow* makeRow(const Uuid& layerID);
    void putRowsInOrder();
    std::int64_t indexOf(const LayerRow& row) const;

    void showButtons();
    void deleteActiveLayer();
    void moveLayerUp();
    void moveLayerDown();
    std::int64_t layerCount() const;

    DrawingDocument& document_;
    QWidget list_;
    QVBoxLayout* listLayout_;
    std::vector<LayerRow*> rows_;  ///< as listed: the highest layer first
    IconButton add_;
    IconButton delete_;
    IconButton moveUp_;
    IconButton moveDown_;
    Follower rowsFollower_;
    Follower buttonsFollower_;
};

}  // namespace marlevo
