#include "ui/LayersSection.h"

#include <QHBoxLayout>

#include <algorithm>
#include <iterator>
#include <utility>

namespace marlevo {

namespace {

constexpr int topPadding = 6;
constexpr int rowSpacing = 4;
constexpr int buttonSpacing = 6;
constexpr int listSpacing = 8;

/// The widget outside `area` that the user tabs from into it; null when there is none.
QWidget* stopBefore(const QWidget& area) {
    QWidget* before = area.previousInFocusChain();
    while (before != &area &&
           (area.isAncestorOf(before) || !(before->focusPolicy() & Qt::TabFocus)))
        before = before->previousInFocusChain();
    return before == &area ? nullptr : before;
}

}  // namespace

LayersSection::LayersSection(DrawingDocument& document, QWidget* parent)
    : QWidget(parent), document_(document), listLayout_(new QVBoxLayout(&list_)),
      add_(Icon::plus, tr("Add layer"), IconButton::Look::bordered),
      delete_(Icon::minus, tr("Delete layer"), IconButton::Look::bordered),
      moveUp_(Icon::arrowUp, tr("Move layer up"), IconButton::Look::bordered),
      moveDown_(Icon::arrowDown, tr("Move layer down"), IconButton::Look::bordered),
      rowsFollower_(document, [this] { showLayers(); }),
      buttonsFollower_(document, [this] { showButtons(); }) {
    list_.setAccessibleName(tr("Layers"));
    listLayout_->setContentsMargins(0, 0, 0, 0);
    listLayout_->setSpacing(rowSpacing);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(buttonSpacing);
    buttons->addWidget(&add_);
    buttons->addWidget(&delete_);
    buttons->addStretch(1);
    buttons->addWidget(&moveUp_);
    buttons->addWidget(&moveDown_);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, topPadding, 0, 0);
    column->setSpacing(listSpacing);
    column->addWidget(&list_);
    column->addLayout(buttons);

    connect(&add_, &IconButton::clicked, this, [this] { document_.addLayer(); });
    connect(&delete_, &IconButton::clicked, this, &LayersSection::deleteActiveLayer);
    connect(&moveUp_, &IconButton::clicked, this, &LayersSection::moveLayerUp);
    connect(&moveDown_, &IconButton::clicked, this, &LayersSection::moveLayerDown);
}

void LayersSection::showLayers() {
    matchRows();
    const LayerList& layers = document_.layers;
    const std::int64_t active = document_.activeLayerIndex;
    // The thumbnails show the canvas stretched, also those that are not on screen yet.
    (void)document_.canvasSize.get();
    for (std::int64_t index = 0; index < std::ssize(layers); ++index)
        rows_[rows_.size() - 1 - index]->showLayer(layers[index], index == active);
}

/// Makes one row for each layer. A layer keeps its row, and so its thumbnail, when it moves.
void LayersSection::matchRows() {
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

LayerRow* LayersSection::makeRow(const Uuid& layerID) {
    auto* row = new LayerRow(document_, layerID, &list_);
    connect(row, &LayerRow::chosen, this,
            [this, row] { document_.activeLayerIndex = indexOf(*row); });
    connect(row, &LayerRow::visibilityToggled, this,
            [this, row] { document_.toggleLayerVisibility(indexOf(*row)); });
    return row;
}

void LayersSection::putRowsInOrder() {
    QWidget* previous = stopBefore(list_);
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        listLayout_->insertWidget(int(i), rows_[i]);
        previous = rows_[i]->followInTabOrder(previous);
    }
}

std::int64_t LayersSection::indexOf(const LayerRow& row) const {
    return rows_.end() - 1 - std::find(rows_.begin(), rows_.end(), &row);
}

void LayersSection::showButtons() {
    const std::int64_t active = document_.activeLayerIndex;
    delete_.setEnabled(layerCount() > 1);
    moveUp_.setEnabled(active < layerCount() - 1);
    moveDown_.setEnabled(active > 0);
}

void LayersSection::deleteActiveLayer() {
    if (layerCount() > 1) document_.deleteLayer(document_.activeLayerIndex);
}

void LayersSection::moveLayerUp() {
    const std::int64_t index = document_.activeLayerIndex;
    if (index < layerCount() - 1) document_.moveLayer(index, index + 1);
}

void LayersSection::moveLayerDown() {
    const std::int64_t index = document_.activeLayerIndex;
    if (index > 0) document_.moveLayer(index, index - 1);
}

std::int64_t LayersSection::layerCount() const { return std::ssize(*document_.layers); }

}  // namespace marlevo
