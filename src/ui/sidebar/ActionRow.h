#pragma once

#include "ui/controls/IconButton.h"
#include "ui/sidebar/ExportPopover.h"
#include "ui/sidebar/LateFollower.h"

namespace marlevo {

class DrawingDocument;

/// Undo, redo, save and export.
class ActionRow final : public QWidget {
    Q_OBJECT

public:
    /// The document must outlive the row.
    explicit ActionRow(DrawingDocument& document, QWidget* parent = nullptr);

private:
    void showHistory();
    void showExportPopover();

    DrawingDocument& document_;
    IconButton undo_;
    IconButton redo_;
    IconButton save_;
    IconButton export_;
    QPointer<ExportPopover> exportPopover_;
    LateFollower historyFollower_;
};

}  // namespace marlevo
