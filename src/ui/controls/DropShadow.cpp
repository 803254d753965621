#include "ui/controls/DropShadow.h"

#include "ui/controls/DevicePixels.h"

#include <QImage>

#include <array>
#include <cmath>
#include <numbers>
#include <vector>

namespace marlevo {

namespace {

constexpr double opacity = 0.15;
constexpr double sigma = 2;  // half the blur radius
constexpr double offsetY = 2;

/// The blurred interval from `begin` to `end` at each of `count` pixels, starting with `first`. A
/// blurred rectangle is the product of its two blurred sides.
std::vector<double> blurredSide(double begin, double end, double blur, int first, int count) {
    std::vector<double> share;
    share.reserve(static_cast<std::size_t>(count));
    const auto below = [blur](double distance) {
        return 0.5 * std::erfc(-distance / (blur * std::numbers::sqrt2));
    };
    for (int i = 0; i < count; ++i) {
        const double centre = first + i + 0.5;
        share.push_back(below(centre - begin) - below(centre - end));
    }
    return share;
}

QImage shadowIn(const QRect& area, const QRectF& shadow, double blur) {
    QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) return image;
    const auto columns =
        blurredSide(shadow.left(), shadow.right(), blur, area.left(), area.width());
    const auto rows = blurredSide(shadow.top(), shadow.bottom(), blur, area.top(), area.height());
    for (int y = 0; y < area.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < area.width(); ++x)
            line[x] = qRgba(0, 0, 0, qRound(255 * opacity * columns[x] * rows[y]));
    }
    return image;
}

}  // namespace

void DropShadow::paint(QPainter& painter, const QRectF& canvas, const QRect& exposed) {
    const DevicePixels pixels(painter, canvas.topLeft());
    const double ratio = painter.device()->devicePixelRatioF();
    const QRectF shadow(0, offsetY * ratio, canvas.width() * ratio, canvas.height() * ratio);
    const QRect inside(0, 0, qRound(canvas.width() * ratio), qRound(canvas.height() * ratio));
    const int margin = static_cast<int>(std::ceil(reach * ratio));
    const QRect outside = inside.adjusted(-margin, -margin, margin, margin);

    const std::array strips{
        QRect(outside.topLeft(), QPoint(outside.right(), inside.top() - 1)),
        QRect(QPoint(outside.left(), inside.bottom() + 1), outside.bottomRight()),
        QRect(QPoint(outside.left(), inside.top()), QPoint(inside.left() - 1, inside.bottom())),
        QRect(QPoint(inside.right() + 1, inside.top()), QPoint(outside.right(), inside.bottom())),
    };
    const QRect visible = pixels.touchedBy(exposed);
    for (const QRect& strip : strips) {
        const QRect part = strip & visible;
        if (!part.isEmpty())
            pixels.drawImage(part.topLeft(), shadowIn(part, shadow, sigma * ratio));
    }
}

}  // namespace marlevo
