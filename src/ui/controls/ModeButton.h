#pragma once

#include "ui/controls/ChoiceButton.h"
#include "ui/controls/Icons.h"

namespace marlevo {

/// A button for one of the tools: an icon and a label on a rounded rectangle.
class ModeButton final : public ChoiceButton {
    Q_OBJECT

public:
    enum class Kind : unsigned char { primary, secondary };

    /// `label` is the accessible name too.
    ModeButton(Kind kind, Icon icon, const QString& label, QWidget* parent = nullptr);

    QSize sizeHint() const override;

    /// The label shortened to a few letters, in narrower padding.
    QSize minimumSizeHint() const override;

protected:
    void paintContents(QPainter& painter) override;
    void changeEvent(QEvent* event) override;

private:
    void paintBackground(QPainter& painter);
    int labelWidth() const;
    int widthAround(int labelWidth, int padding) const;
    int roomForLabel() const;

    Kind kind_;
    Icon icon_;
};

}  // namespace marlevo
