#pragma once

#include "ui/controls/Icons.h"

#include <QCheckBox>

#include <optional>

namespace marlevo {

/// A checkbox in callout size, perhaps with an icon before its label. A label that does not fit is
/// elided and shown whole in a tooltip.
class CheckBox final : public QCheckBox {
    Q_OBJECT

public:
    /// What the box stands away from the edge, in points.
    static constexpr int focusRoom = 3;

    /// `label` is the accessible name too.
    explicit CheckBox(const QString& label, std::optional<Icon> icon = {},
                      QWidget* parent = nullptr);

    /// Shows a state; emits nothing.
    void showChecked(bool checked);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
    void paintEvent(QPaintEvent* event) override;

private:
    int labelLeft() const;

    std::optional<Icon> icon_;
};

}  // namespace marlevo
