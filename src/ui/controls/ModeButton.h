#pragma once

#include "ui/controls/ChoiceButton.h"
#include "ui/controls/Icons.h"

namespace marlevo {

/// A button for one of the tools: an icon and a label on a rounded rectangle. In a button that is
/// too narrow even for its tighter padding, the label takes more lines (WrapText.h).
class ModeButton final : public ChoiceButton {
    Q_OBJECT

public:
    enum class Kind : unsigned char { primary, secondary };

    /// Between icon and label, in view points.
    static constexpr int iconGap = 5;

    /// `label` without its soft hyphens is the accessible name too.
    ModeButton(Kind kind, Icon icon, const QString& label, QWidget* parent = nullptr);

    QSize sizeHint() const override;

    /// The whole label in one line in the tighter padding.
    QSize minimumSizeHint() const override;

    int heightForWidth(int width) const override;

protected:
    void initStyleOption(QStyleOptionToolButton* option) const override;

private:
    QString labelFor(int width) const;
    QSize sizeAround(const QString& label, int padding) const;
};

}  // namespace marlevo
