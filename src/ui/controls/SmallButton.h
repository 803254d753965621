#pragma once

#include "ui/controls/PaintedButton.h"

namespace marlevo {

/// A small bordered button with text in caption size.
class SmallButton final : public PaintedButton {
    Q_OBJECT

public:
    explicit SmallButton(const QString& title, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintContents(QPainter& painter) override;
    double focusRadius() const override;
};

}  // namespace marlevo
