#pragma once

#include "model/ExportFormat.h"
#include "ui/controls/Popover.h"
#include "ui/controls/ToolButton.h"

namespace marlevo {

/// The formats in which a picture can be exported.
class ExportPopover final : public Popover {
    Q_OBJECT

public:
    explicit ExportPopover(QWidget& anchor);

Q_SIGNALS:
    /// A format was chosen; the popover is closed by then.
    void formatChosen(marlevo::ExportFormat format);
};

/// A row of the popover: a format's title and, at the trailing edge, an icon.
class ExportFormatButton final : public ToolButton {
    Q_OBJECT

public:
    explicit ExportFormatButton(ExportFormat format, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace marlevo
