#pragma once

#include "graphics/Color.h"
#include "ui/controls/ToolButton.h"

#include <QPointer>

class QColorDialog;

namespace marlevo {

/// Shows a colour and opens a panel to choose another. Each choice in the panel emits colorChosen()
/// at once; the panel is not modal and closes when the well is disabled.
class ColorWell final : public ToolButton {
    Q_OBJECT

public:
    enum class Opacity : unsigned char { fixed, choosable };

    /// `name` is the accessible name and the panel's title; `width` in view points, beside a usual
    /// font.
    ColorWell(const QString& name, Opacity opacity, int width, QWidget* parent = nullptr);

    /// Shows a colour; emits nothing.
    void showColor(const Color& color);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void colorChosen(const marlevo::Color& color);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void openPanel();
    void choose(const QColor& color);
    void describeColor();

private Q_SLOTS:
    void takeHue(int hue, int saturation);

private:
    Opacity opacity_;
    int width_;
    Color color_;
    QPointer<QColorDialog> panel_;
};

}  // namespace marlevo
