#pragma once

#include "model/CanvasSize.h"
#include "ui/controls/ChoiceRow.h"

#include <QCoreApplication>

namespace marlevo {

/// One preset in the list of the new-canvas sheet.
class PresetRow final : public ChoiceRow {
    Q_OBJECT

public:
    explicit PresetRow(const CanvasSize::Preset& preset, QWidget* parent = nullptr)
        : ChoiceRow(QCoreApplication::translate("Presets", preset.name.c_str()), parent),
          preset_(preset) {}

    const CanvasSize::Preset& preset() const { return preset_; }

private:
    CanvasSize::Preset preset_;
};

}  // namespace marlevo
