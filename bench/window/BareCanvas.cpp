#include "bench/window/BareCanvas.h"

#include <QMouseEvent>
#include <QPainter>

namespace marlevo {

BareCanvas::BareCanvas(QSize size) : picture_(size, QImage::Format_RGB32) {
    setFixedSize(size);
    setAttribute(Qt::WA_OpaquePaintEvent);
    picture_.fill(Qt::white);
}

void BareCanvas::paintEvent(QPaintEvent* event) {
    QPainter(this).drawImage(event->rect(), picture_, event->rect());
}

void BareCanvas::mousePressEvent(QMouseEvent* event) { last_ = event->position(); }

void BareCanvas::mouseMoveEvent(QMouseEvent* event) {
    constexpr int width = 3;
    QPainter painter(&picture_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawLine(last_, event->position());
    const QRectF piece = QRectF(last_, event->position()).normalized();
    update(piece.adjusted(-width, -width, width, width).toAlignedRect());
    last_ = event->position();
}

}  // namespace marlevo
