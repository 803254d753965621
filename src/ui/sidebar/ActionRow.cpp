#include "ui/sidebar/ActionRow.h"

#include "io/Export.h"
#include "io/Save.h"
#include "model/DrawingDocument.h"
#include "ui/controls/FlowLayout.h"

namespace marlevo {

namespace {

constexpr int spacing = 6;
constexpr int verticalPadding = 2;

}  // namespace

ActionRow::ActionRow(DrawingDocument& document, QWidget* parent)
    : QWidget(parent), document_(document),
      undo_(Icon::undoArrow, tr("Undo"), IconButton::Look::borderless),
      redo_(Icon::redoArrow, tr("Redo"), IconButton::Look::borderless),
      save_(Icon::documentPlus, tr("Save"), IconButton::Look::borderless),
      export_(Icon::trayArrowDown, tr("Export"), IconButton::Look::borderless),
      historyFollower_(document.changeRegistry(), [this] { showHistory(); }) {
    export_.setOpensPopover(true);
    // AT-SPI transmits no state for this; the description says it.
    export_.setAccessibleDescription(tr("Opens a menu"));
    auto* row = new FlowLayout(FlowLayout::Fill::ends, spacing, this);
    row->setContentsMargins(0, verticalPadding, 0, verticalPadding);
    row->addLayout(groupOf({&undo_, &redo_}, spacing));
    row->addLayout(groupOf({&save_, &export_}, spacing));

    connect(&undo_, &IconButton::clicked, this, [this] { document_.undo(); });
    connect(&redo_, &IconButton::clicked, this, [this] { document_.redo(); });
    connect(&save_, &IconButton::clicked, this, [this] { save(document_); });
    connect(&export_, &IconButton::clicked, this, &ActionRow::showExportPopover);
}

void ActionRow::showHistory() {
    const bool canUndo = document_.canUndo();
    const bool canRedo = document_.canRedo();
    // A button that has done the last step gives the focus to its opposite, which can be pressed.
    if (canUndo && redo_.hasFocus() && !canRedo) {
        undo_.setEnabled(true);
        undo_.setFocus();
    } else if (canRedo && undo_.hasFocus() && !canUndo) {
        redo_.setEnabled(true);
        redo_.setFocus();
    }
    undo_.setEnabled(canUndo);
    redo_.setEnabled(canRedo);
}

void ActionRow::showExportPopover() {
    if (exportPopover_) return;
    exportPopover_ = new ExportPopover(export_);
    connect(exportPopover_, &ExportPopover::formatChosen, this,
            [this](ExportFormat format) { performExport(document_, format); });
    exportPopover_->open();
}

}  // namespace marlevo
