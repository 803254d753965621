#include "ui/canvas/RoundedCorners.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>

namespace marlevo {

namespace {

/// The part of a corner's square outside the circle; `inward` points to the circle's centre.
QPainterPath outsideOfCorner(QPointF corner, QPointF inward, double radius) {
    QPainterPath square;
    square.addRect(QRectF(corner, corner + inward * radius).normalized());
    QPainterPath circle;
    circle.addEllipse(corner + inward * radius, radius, radius);
    return square.subtracted(circle);
}

}  // namespace

void clipToRoundedRect(QImage& image, QPoint imageOrigin, QSizeF size, double radius) {
    const double r = std::min({radius, size.width() / 2, size.height() / 2});
    const double width = size.width();
    const double height = size.height();
    const QRectF area(imageOrigin, image.size());
    // Most painted areas do not touch the edge.
    if (QRectF(QPointF(0, r), QPointF(width, height - r)).contains(area) ||
        QRectF(QPointF(r, 0), QPointF(width - r, height)).contains(area))
        return;

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.translate(-imageOrigin);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);

    // The rectangle covers the pixels at its right and bottom edge only in part.
    if (area.right() > width)
        painter.drawRect(QRectF(QPointF(width, area.top()), area.bottomRight()));
    if (area.bottom() > height)
        painter.drawRect(QRectF(QPointF(area.left(), height), area.bottomRight()));

    const std::array<std::pair<QPointF, QPointF>, 4> corners{{
        {{0, 0}, {1, 1}},
        {{width, 0}, {-1, 1}},
        {{0, height}, {1, -1}},
        {{width, height}, {-1, -1}},
    }};
    for (const auto& [corner, inward] : corners) {
        if (area.intersects(QRectF(corner, corner + inward * r).normalized()))
            painter.drawPath(outsideOfCorner(corner, inward, r));
    }
}

}  // namespace marlevo
