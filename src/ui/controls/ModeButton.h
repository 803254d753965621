#pragma once

#include "ui/controls/ChoiceButton.h"
#include "ui/controls/Icons.h"

namespace marlevo {

/// A button for one of the tools: an icon and a label on a rounded rectangle. A label that does not
/// fit is elided and shown whole in a tooltip.
class ModeButton final : public ChoiceButton {
    Q_OBJECT

public:
    enum class Kind : unsigned char { primary, secondary };

    /// Between icon and label, in view points.
    static constexpr int iconGap = 5;

    /// `label` is the accessible name too.
    ModeButton(Kind kind, Icon icon, const QString& label, QWidget* parent = nullptr);

    QSize sizeHint() const override;

    /// The label shortened to a few letters, in narrower padding.
    QSize minimumSizeHint() const override;

    /// The width of the whole label in the narrower padding.
    int tightWidth() const;

protected:
    void initStyleOption(QStyleOptionToolButton* option) const override;

private:
    int labelWidth() const;
    int widthAround(int labelWidth, int padding) const;
    int roomForLabel() const;
};

}  // namespace marlevo
