#include "ui/sidebar/LayerRows.h"

#include "model/DrawingDocument.h"
#include "ui/sidebar/SidebarAccessibility.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace marlevo {

namespace {

constexpr int spacing = 4;

/// The last Tab stop before `area`; null when there is none.
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
    for (std::int64_t index = 0; index < std::ssize(layers); ++index) {
        LayerRow& row = *rows_[rows_.size() - 1 - index];
        row.showLayer(layers[index], canvas);
        row.showActive(index == active);
    }
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
    const bool hadFocus = focusGroup_.hasFocus();
    putRowsInOrder();
    focusGroup_.setMembers({rows_.begin(), rows_.end()});
    // A deleted row must not pass its focus on to the next widget.
    if (hadFocus && !focusGroup_.hasFocus()) focusGroup_.moveFocusTo(activeRow());
    for (LayerRow* row : unused) {
        row->hide();
        row->deleteLater();
    }
}

LayerRow& LayerRows::activeRow() const {
    const std::int64_t below = std::ssize(rows_) - 1 - document_.activeLayerIndex;
    return below >= 0 && below < std::ssize(rows_) ? *rows_[below] : *rows_.front();
}

void LayerRows::focusActiveRow() {
    follower_.refresh();
    if (!rows_.empty()) focusGroup_.moveFocusTo(activeRow());
}

LayerRow* LayerRows::makeRow(const Uuid& layerID) {
    auto* row = new LayerRow(document_.services(), images_, layerID, this);
    connect(row, &LayerRow::chosen, this, [this, row] {
        if (const auto index = indexOf(*row)) document_.activeLayerIndex = *index;
    });
    connect(row, &LayerRow::visibilityToggled, this, [this, row] {
        if (const auto index = indexOf(*row)) document_.toggleLayerVisibility(*index);
    });
    return row;
}

void LayerRows::putRowsInOrder() {
    QWidget* previous = stopBefore(*this);
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        layout_->insertWidget(int(i), rows_[i]);
        previous = rows_[i]->followInTabOrder(previous);
    }
}

/// Absent if the layer was removed and the list does not show it yet.
std::optional<std::int64_t> LayerRows::indexOf(const LayerRow& row) const {
    const LayerList& layers = document_.layers;
    const auto found = std::ranges::find(layers, row.layerID(), &Layer::id);
    if (found == layers.end()) return std::nullopt;
    return std::distance(layers.begin(), found);
}

}  // namespace marlevo
