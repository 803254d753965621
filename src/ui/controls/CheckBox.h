#pragma once

#include "ui/controls/Icons.h"

#include <QCheckBox>

#include <optional>

namespace marlevo {

/// A check box in callout size, with or without an icon before its label. A label that does not fit
/// takes more lines (WrapText.h).
class CheckBox final : public QCheckBox {
    Q_OBJECT

public:
    /// Room around every check box for the focus ring, in view points.
    static constexpr int focusRoom = 3;

    /// `label` without its soft hyphens is the accessible name too.
    explicit CheckBox(const QString& label, std::optional<Icon> icon = {},
                      QWidget* parent = nullptr);

    /// Shows a state; emits nothing.
    void showChecked(bool checked);

    /// The whole label in one line.
    QSize sizeHint() const override;

    /// Room for a few letters in each line.
    QSize minimumSizeHint() const override;

    int heightForWidth(int width) const override;

protected:
    void initStyleOption(QStyleOptionButton* option) const override;

private:
    QStyleOptionButton optionWithoutBreaks() const;
};

}  // namespace marlevo
