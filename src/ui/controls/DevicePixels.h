#pragma once

#include <QPainter>
#include <QPointF>
#include <QRect>
#include <QTransform>

namespace marlevo {

/// A frame of whole device pixels for a painter on a widget of any scale factor. Its origin is the
/// device pixel nearest to a given point.
class DevicePixels {
public:
    /// `origin` is in the painter's coordinates. The painter must have no transform of its own.
    DevicePixels(QPainter& painter, QPointF origin);

    /// The device pixels, relative to the origin, that a rectangle in the painter's coordinates
    /// touches.
    QRect touchedBy(const QRectF& rect) const;

    /// Draws the image pixel by pixel with its top left corner at `at`.
    void drawImage(QPoint at, const QImage& image) const;

private:
    QPainter& painter_;
    QTransform toDevice_;  ///< from the painter's coordinates
    QPoint origin_;        ///< in device pixels
};

}  // namespace marlevo
