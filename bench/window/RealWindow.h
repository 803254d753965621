#pragma once

#include "bench/window/Hand.h"
#include "bench/window/Meter.h"
#include "platform/BackgroundThread.h"
#include "platform/WorkQueue.h"
#include "platform/qt/QtImageCodec.h"
#include "platform/qt/QtMainQueue.h"
#include "platform/qt/QtStrings.h"
#include "ui/windows/ContentView.h"
#include "ui/windows/DocumentWindow.h"
#include "ui/windows/MarlevoApp.h"
#include "ui/windows/Translations.h"

#include <filesystem>
#include <vector>

namespace marlevo {

/// A document window of the program on the X server's screen, large enough for its canvas.
class RealWindow {
public:
    enum class Sheet : bool { dismissed, showing };

    /// A window that is opened with a drawing shows no new-canvas sheet.
    explicit RealWindow(Sheet sheet, const std::vector<std::filesystem::path>& drawings = {});

    DocumentWindow& window() { return *window_; }
    DrawingDocument& document() { return window_->document(); }

    /// Shows the picture at actual size in a window with room for it, or as large as the screen.
    void show(LayerList layers, const CanvasSize& canvas);

    /// The place on the screen of a visible point of the canvas.
    QPoint onScreen(Point canvasPoint);

    /// The place on the screen of the control with this accessible name.
    QRect control(const QString& name);

    /// The visible part of the canvas, from its corner.
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
