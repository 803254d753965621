#include "ui/canvas/CanvasOverlay.h"

#include "render/SelectionOutline.h"
#include "tools/Selection.h"
#include "ui/controls/Colors.h"
#include "ui/controls/Icons.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/TypeScale.h"

#include <QImage>
#include <QPainter>
#include <QPen>

#include <algorithm>

namespace marlevo {

namespace {

// The outline of the selection, in canvas pixels.
constexpr double outlineRadius = 4;
constexpr double outlineWidth = 2;
constexpr double outlineDash = 5;
constexpr double outlineGap = 3;

constexpr double eyeDropperOpacity = 0.4;

QRectF eyeDropperPlace(const QRectF& canvas) {
    const int side = iconSide(TypeStyle::largeTitle);
    QRectF place(0, 0, side, side);
    place.moveCenter(canvas.center());
    return place;
}

}  // namespace

CanvasOverlay::CanvasOverlay(const DrawingDocument& document)
    : hasEyeDropper_(document.isEyeDropper) {
    const auto rect = selectedStrokeBoundingRect(document);
    if (!rect) return;
    const std::optional<Stroke>& stroke = document.currentStroke;
    outline_ =
        Outline{*rect, selectionOutlineOpacity(document.layers, stroke ? &*stroke : nullptr)};
}

void CanvasOverlay::paintOutline(QImage& part, QPoint origin, double scale) const {
    if (!outline_) return;
    QPainter painter(&part);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-origin);
    painter.scale(scale, scale);
    painter.setOpacity(outline_->opacity);
    QPen pen(semanticColor(SemanticColor::blue), outlineWidth, Qt::CustomDashLine, Qt::FlatCap,
             Qt::MiterJoin);
    pen.setMiterLimit(10);
    // QPen measures dashes in widths of the pen.
    pen.setDashPattern({outlineDash / outlineWidth, outlineGap / outlineWidth});
    painter.setPen(pen);
    const Rect& rect = outline_->rect;
    painter.drawRoundedRect(QRectF(rect.origin.x, rect.origin.y, rect.size.width, rect.size.height),
                            outlineRadius, outlineRadius);
}

void CanvasOverlay::paintEyeDropper(QPainter& painter, const QRectF& canvas) const {
    if (!hasEyeDropper_) return;
    paintIcon(painter, Icon::eyedropper, eyeDropperPlace(canvas),
              withOpacity(semanticColor(SemanticColor::blue), eyeDropperOpacity));
}

std::vector<QRectF> CanvasOverlay::outlineDamage(const CanvasOverlay& before, double scale) const {
    std::vector<QRectF> areas;
    if (outline_ == before.outline_) return areas;
    if (before.outline_) addSides(areas, *before.outline_, scale);
    if (outline_) addSides(areas, *outline_, scale);
    return areas;
}

QRectF CanvasOverlay::eyeDropperDamage(const CanvasOverlay& before, const QRectF& canvas) const {
    return hasEyeDropper_ == before.hasEyeDropper_ ? QRectF() : eyeDropperPlace(canvas);
}

/// Four areas, because the area between the sides can be large.
void CanvasOverlay::addSides(std::vector<QRectF>& areas, const Outline& outline, double scale) {
    const double reach = outlineWidth / 2 * scale + 1;  // one pixel for anti-aliasing
    const double corner = std::max(outlineRadius * scale, reach);
    const Rect& rect = outline.rect;
    const QRectF line(rect.origin.x * scale, rect.origin.y * scale, rect.size.width * scale,
                      rect.size.height * scale);
    const QRectF outside = line.adjusted(-reach, -reach, reach, reach);
    const QRectF inside = line.adjusted(corner, corner, -corner, -corner);
    if (!inside.isValid()) {
        areas.push_back(outside);
        return;
    }
    areas.emplace_back(outside.topLeft(), QPointF(outside.right(), inside.top()));
    areas.emplace_back(QPointF(outside.left(), inside.bottom()), outside.bottomRight());
    areas.emplace_back(QPointF(outside.left(), inside.top()), inside.bottomLeft());
    areas.emplace_back(inside.topRight(), QPointF(outside.right(), inside.bottom()));
}

}  // namespace marlevo
