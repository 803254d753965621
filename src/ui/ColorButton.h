#pragma once

#include "graphics/Color.h"

#include <QToolButton>

namespace marlevo {

/// A button that shows a colour below its text and lets the user choose another in a panel.
class ColorButton final : public QToolButton {
    Q_OBJECT

public:
    enum class Opacity : unsigned char { fixed, choosable };

    /// `name` is the button's text and accessible name and the panel's title.
    ColorButton(const QString& name, Opacity opacity, QWidget* parent = nullptr);

    void setColor(const Color& color);

    QSize sizeHint() const override;

Q_SIGNALS:
    void colorChosen(const marlevo::Color& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void openPanel();

    Color color_;
    Opacity opacity_;
};

}  // namespace marlevo
