#pragma once

#include <QPainter>
#include <QPointF>
#include <QRect>
#include <QTransform>

namespace marlevo {

/// Whole device pixels as a frame to paint in: for a painter on a widget of any scale factor, with
/// the origin on the device pixel nearest to a given point.
class DevicePixels {
public:
    /// `origin` in the painter's coordinates; the painter must not be transformed by its user yet.
    DevicePixels(QPainter& painter, QPointF origin);

    /// The device pixels, counted from the origin, that a rectangle of the painter's touches.
    QRect touchedBy(const QRectF& rect) const;

    /// Draws the image pixel by pixel with its top left corner at `at`.
    void drawImage(QPoint at, const QImage& image) const;

private:
    QPainter& painter_;
    QTransform toDevice_;  ///< from the painter's coordinates
    QPoint origin_;        ///< in device pixels
};

}  // namespace marlevo
