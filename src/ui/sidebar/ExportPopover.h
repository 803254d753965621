#pragma once

#include "model/ExportFormat.h"
#include "ui/controls/PaintedButton.h"
#include "ui/controls/Popover.h"

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

/// A line of the popover: a format's title and, at the end, a picture of saving.
class ExportFormatButton final : public PaintedButton {
    Q_OBJECT

public:
    explicit ExportFormatButton(ExportFormat format, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintContents(QPainter& painter) override;
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace marlevo
