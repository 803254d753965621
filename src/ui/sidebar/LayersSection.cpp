#include "ui/sidebar/LayersSection.h"

#include "model/DrawingDocument.h"
#include "model/LayerOperations.h"
#include "ui/controls/FlowLayout.h"

#include <QVBoxLayout>

namespace marlevo {

namespace {

constexpr int topPadding = 6;
constexpr int buttonSpacing = 6;
constexpr int listSpacing = 8;

}  // namespace

LayersSection::LayersSection(DrawingDocument& document, ImageCache& images, QWidget* parent)
    : QWidget(parent), document_(document), rows_(document, images),
      add_(Icon::plus, tr("Add layer"), IconButton::Look::bordered),
      delete_(Icon::minus, tr("Delete layer"), IconButton::Look::bordered),
      moveUp_(Icon::arrowUp, tr("Move layer up"), IconButton::Look::bordered),
      moveDown_(Icon::arrowDown, tr("Move layer down"), IconButton::Look::bordered),
      buttonsFollower_(document.changeRegistry(), [this] { showButtons(); }) {
    auto* buttons = new QWidget;
    auto* row = new FlowLayout(FlowLayout::Fill::ends, buttonSpacing, buttons);
    row->addLayout(groupOf({&add_, &delete_}, buttonSpacing));
    row->addLayout(groupOf({&moveUp_, &moveDown_}, buttonSpacing));

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, topPadding, 0, 0);
    column->setSpacing(listSpacing);
    column->addWidget(&rows_);
    column->addWidget(buttons);

    connect(&add_, &IconButton::clicked, this, [this] { document_.addLayer(); });
    connect(&delete_, &IconButton::clicked, this, [this] { deleteActiveLayer(document_); });
    connect(&moveUp_, &IconButton::clicked, this, [this] { moveActiveLayerUp(document_); });
    connect(&moveDown_, &IconButton::clicked, this, [this] { moveActiveLayerDown(document_); });
}

void LayersSection::showButtons() {
    const std::int64_t active = document_.activeLayerIndex;
    const std::int64_t count = std::ssize(*document_.layers);
    const auto setEnabled = [this](QWidget& button, bool isEnabled) {
        // The toolkit would give the focus to the button beside it, which undoes what this one did.
        if (!isEnabled && button.hasFocus()) rows_.focusActiveRow();
        button.setEnabled(isEnabled);
    };
    setEnabled(delete_, count > 1);
    setEnabled(moveUp_, active < count - 1);
    setEnabled(moveDown_, active > 0);
}

}  // namespace marlevo
