#pragma once

#include "ui/controls/Icons.h"

#include <QCheckBox>

#include <optional>

namespace marlevo {

/// A check box in callout size, with or without an icon before its label. A label that does not fit
/// is elided and shown whole in a tooltip.
class CheckBox final : public QCheckBox {
    Q_OBJECT

public:
    /// Room around every check box for the focus ring, in view points.
    static constexpr int focusRoom = 3;

    /// `label` is the accessible name too.
    explicit CheckBox(const QString& label, std::optional<Icon> icon = {},
                      QWidget* parent = nullptr);

    /// Shows a state; emits nothing.
    void showChecked(bool checked);

    QSize minimumSizeHint() const override;
};

}  // namespace marlevo
