#pragma once

#include <QImage>
#include <QPointF>
#include <QWidget>

namespace marlevo {

/// The floor for drawing programs on Qt: a widget that draws the newest segment of a line into an
/// image with Qt's painter and shows the changed part. It stores no points, has no undo, and shows
/// translucent lines wrong.
class BareCanvas final : public QWidget {
public:
    explicit BareCanvas(QSize size);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QImage picture_;
    QPointF last_;
};

}  // namespace marlevo
