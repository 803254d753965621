#include "ui/controls/ControlPainting.h"

#include "ui/controls/SemanticColors.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>

#include <algorithm>
#include <cstdlib>

namespace marlevo {

void paintRoundedRect(QPainter& painter, const QRectF& rect, double radius, const QColor& fill,
                      const Outline& outline) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(rect, radius, radius);
    if (outline.width > 0) {
        const double inset = outline.width / 2;
        painter.setPen(QPen(outline.color, outline.width));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), radius - inset,
                                radius - inset);
    }
    painter.restore();
}

void paintColorEdge(QPainter& painter, const QRectF& rect, double radius, const QColor& color) {
    const QColor background = semanticColor(SemanticColor::controlBackground);
    constexpr int visibleDifference = 48;
    const int difference = std::max({std::abs(color.red() - background.red()),
                                     std::abs(color.green() - background.green()),
                                     std::abs(color.blue() - background.blue())});
    if (difference < visibleDifference)
        paintRoundedRect(painter, rect, radius, Qt::transparent,
                         {semanticColor(SemanticColor::outline), 1});
}

void paintShadow(QPainter& painter, const QPainterPath& shape, int reach, double opacity) {
    painter.setBrush(Qt::NoBrush);
    const QColor layer = withOpacity(Qt::black, opacity / reach);
    for (int distance = reach; distance > 0; --distance) {
        painter.setPen(QPen(layer, 2 * distance, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(shape);
    }
}

void paintFocusRing(QPainter& painter, const QRectF& rect, double radius) {
    // A line of the background inside keeps the ring visible on fills of its own colour.
    paintRoundedRect(painter, rect, radius, Qt::transparent,
                     {semanticColor(SemanticColor::controlBackground), 3});
    paintRoundedRect(painter, rect, radius, Qt::transparent,
                     {semanticColor(SemanticColor::blue), 2});
}

}  // namespace marlevo
