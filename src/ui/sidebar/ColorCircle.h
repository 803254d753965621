#pragma once

#include <QColor>
#include <QWidget>

namespace marlevo {

/// A circle in the colour of new strokes.
class ColorCircle final : public QWidget {
    Q_OBJECT

public:
    explicit ColorCircle(QWidget* parent = nullptr);

    void showColor(const QColor& color);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor color_;
};

}  // namespace marlevo
