#include "ui/controls/DevicePixels.h"

#include <QImage>

namespace marlevo {

DevicePixels::DevicePixels(QPainter& painter, QPointF origin)
    : painter_(painter), toDevice_(painter.deviceTransform()),
      origin_(toDevice_.map(origin).toPoint()) {}

QRect DevicePixels::touchedBy(const QRectF& rect) const {
    return toDevice_.mapRect(rect).toAlignedRect().translated(-origin_);
}

void DevicePixels::drawImage(QPoint at, const QImage& image) const {
    const QPoint corner = origin_ + at;
    painter_.save();
    painter_.setWorldTransform(QTransform::fromTranslate(corner.x(), corner.y()) *
                               toDevice_.inverted());
    painter_.drawImage(0, 0, image);
    painter_.restore();
}

}  // namespace marlevo
