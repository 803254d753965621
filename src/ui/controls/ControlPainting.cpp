#include "ui/controls/ControlPainting.h"

#include "ui/controls/SemanticColors.h"

#include <QPainter>
#include <QPen>

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

void paintFocusRing(QPainter& painter, const QRectF& rect, double radius) {
    // A line of the background inside keeps the ring visible on fills of its own colour.
    paintRoundedRect(painter, rect, radius, Qt::transparent,
                     {semanticColor(SemanticColor::controlBackground), 3});
    paintRoundedRect(painter, rect, radius, Qt::transparent,
                     {semanticColor(SemanticColor::blue), 2});
}

}  // namespace marlevo
