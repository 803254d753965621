#pragma once

#include <QImage>
#include <QPointF>
#include <QWidget>

namespace marlevo {

/// The floor under every drawing program on this toolkit: a widget that draws the newest piece of a
/// line into an image with Qt's painter and shows what changed. It keeps no points, undoes nothing
/// and shows a translucent line wrong.
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
