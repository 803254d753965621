#include "ui/sidebar/LayerRows.h"

#include "model/DrawingDocument.h"
#include "ui/sidebar/SidebarAccessibility.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace marlevo {

namespace {

constexpr int spacing = 4;

/// The widget outside `area` that the user tabs from into it; null when there is none.
QWidget* stopBefore(const QWidget& area) {
    QWidget* before = area.previousInFocusChain();
    while (before != &area &&
           (area.isAncestorOf(before) || !(before->focusPolicy() & Qt::TabFocus)))
        before = before->previousInFocusChain();
    return before == &area ? nullptr : before;
}

}  // namespace

LayerRows::LayerRows(DrawingDocument& document, ImageCache& images, QWidget* parent)
    : QWidget(parent), document_(document), images_(images), layout_(new QVBoxLayout(this)),
      follower_(document.changeRegistry(), [this] { showLayers(); }) {
    installSidebarAccessibility();
    setAccessibleName(tr("Layers"));
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(spacing);
}

void LayerRows::showLayers() {
    matchRows();
    const LayerList& layers = document_.layers;
    const std::int64_t active = document_.activeLayerIndex;
    const CanvasSize canvas = document_.canvasSize;
    for (std::int64_t index = 0; index < std::ssize(layers); ++index)
        rows_[rows_.size() - 1 - index]->showLayer(layers[index], canvas, index == active);
}

/// Makes one row for each layer. A layer keeps its row, and so its thumbnail, when it moves.
void LayerRows::matchRows() {
    const LayerList& layers = document_.layers;
    const auto showsLayer = [](const LayerRow* row, const Layer& layer) {
        return row->layerID() == layer.id;
    };
    if (std::equal(rows_.begin(), rows_.end(), layers.rbegin(), layers.rend(), showsLayer)) return;

    std::vector<LayerRow*> unused = std::exchange(rows_, {});
    for (auto layer = layers.rbegin(); layer != layers.rend(); ++layer) {
        const auto found = std::find_if(unused.begin(), unused.end(), [&](const LayerRow* row) {
            return showsLayer(row, *layer);
        });
        if (found == unused.end()) {
            rows_.push_back(makeRow(layer->id));
        } else {
            rows_.push_back(*found);
            unused.erase(found);
        }
    }
    for (LayerRow* row : unused) {
        // Later: the row's own button may have led here.
        row->hide();
        row->deleteLater();
    }
    putRowsInOrder();
}

LayerRow* LayerRows::makeRow(const Uuid& layerID) {
    auto* row = new LayerRow(document_.services(), images_, layerID, this);
    connect(row, &LayerRow::chosen, this,
            [this, row] { document_.activeLayerIndex = indexOf(*row); });
    connect(row, &LayerRow::visibilityToggled, this,
            [this, row] { document_.toggleLayerVisibility(indexOf(*row)); });
    return row;
}

void LayerRows::putRowsInOrder() {
    QWidget* previous = stopBefore(*this);
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        layout_->insertWidget(int(i), rows_[i]);
        previous = rows_[i]->followInTabOrder(previous);
    }
}

std::int64_t LayerRows::indexOf(const LayerRow& row) const {
    return rows_.end() - 1 - std::find(rows_.begin(), rows_.end(), &row);
}

}  // namespace marlevo
