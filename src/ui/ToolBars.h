#pragma once

#include "ui/ControlRow.h"

namespace marlevo {

/// The drawing tools and the settings of new strokes.
class DrawingToolBar final : public ControlRow {
    Q_OBJECT

public:
    explicit DrawingToolBar(DrawingDocument& document, QWidget* parent = nullptr);
};

/// The background and the zoom.
class ViewToolBar final : public ControlRow {
    Q_OBJECT

public:
    explicit ViewToolBar(DrawingDocument& document, QWidget* parent = nullptr);
};

}  // namespace marlevo
