#pragma once

#include "bench/window/Hand.h"
#include "bench/window/Meter.h"
#include "platform/BackgroundThread.h"
#include "platform/WorkQueue.h"
#include "platform/qt/QtImageCodec.h"
#include "platform/qt/QtMainQueue.h"
#include "platform/qt/QtStrings.h"
#include "ui/windows/DocumentWindow.h"
#include "ui/windows/MarlevoApp.h"
#include "ui/windows/Translations.h"

#include <filesystem>
#include <vector>

namespace marlevo {

/// A document window of the program on the X server's screen, as large as its canvas wants it.
class RealWindow {
public:
    enum class Sheet : bool { dismissed, showing };

    /// Started with a drawing there is no sheet to begin with.
    explicit RealWindow(Sheet sheet, const std::vector<std::filesystem::path>& drawings = {});

    DocumentWindow& window() { return *window_; }
    DrawingDocument& document() { return window_->document(); }

    /// Shows a picture at actual size in a window that has room for it, as far as the screen has.
    void show(LayerList layers, const CanvasSize& canvas);

    /// The place on the screen of a point in sight of the canvas.
    QPoint onScreen(Point canvasPoint);

    /// The place on the screen of the control with this accessible name.
    QRect control(const QString& name);

    /// The part of the canvas that is in sight and large enough to draw in, from its corner.
    CanvasSize inSight();

private:
    const Translations translations_;
    QtMainQueue mainQueue_;
    const QtImageCodec imageCodec_;
    const QtStrings strings_;
    WorkQueue flushQueue_;
    BackgroundThread backgroundQueue_;
    MarlevoApp app_;
    DocumentWindow* window_;
};

}  // namespace marlevo
