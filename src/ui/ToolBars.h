#pragma once

#include "ui/ControlRow.h"

namespace marlevo {

/// The zoom.
class ViewToolBar final : public ControlRow {
    Q_OBJECT

public:
    explicit ViewToolBar(DrawingDocument& document, QWidget* parent = nullptr);
};

}  // namespace marlevo
