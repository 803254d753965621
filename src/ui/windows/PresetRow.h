#pragma once

#include "model/CanvasSize.h"

#include <QRadioButton>

namespace marlevo {

/// One preset in the list of the new-canvas sheet: its name, and a mark when it is the chosen one.
/// Who shows it says whether it is; a press only asks to choose it, by toggled(true).
class PresetRow final : public QRadioButton {
    Q_OBJECT

public:
    explicit PresetRow(const CanvasSize::Preset& preset, QWidget* parent = nullptr);

    const CanvasSize::Preset& preset() const { return preset_; }

    /// Emits nothing.
    void showSelected(bool isSelected);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
    void paintEvent(QPaintEvent* event) override;

private:
    CanvasSize::Preset preset_;
};

}  // namespace marlevo
