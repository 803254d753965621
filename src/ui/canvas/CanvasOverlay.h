#pragma once

#include "model/DrawingDocument.h"

#include <QRectF>

#include <optional>
#include <vector>

class QImage;
class QPainter;

namespace marlevo {

/// What the canvas shows above the picture: the outline of the selected stroke and the sign of the
/// eyedropper.
class CanvasOverlay {
public:
    /// An empty overlay.
    CanvasOverlay() = default;
    explicit CanvasOverlay(const DrawingDocument& document);

    /// Paints the outline into a part of the canvas. `origin` is the part's top left corner in
    /// device pixels of the canvas, `scale` the device pixels per canvas pixel.
    void paintOutline(QImage& part, QPoint origin, double scale) const;

    /// Paints the eyedropper's sign in the centre of the canvas, in view points.
    void paintEyeDropper(QPainter& painter, const QRectF& canvas) const;

    /// The areas where the outline differs from that of `before`, in device pixels of the canvas.
    std::vector<QRectF> outlineDamage(const CanvasOverlay& before, double scale) const;

    /// The area where the eyedropper's sign differs from that of `before`, in view points; empty
    /// where they are equal.
    QRectF eyeDropperDamage(const CanvasOverlay& before, const QRectF& canvas) const;

private:
    struct Outline {
        Rect rect;  ///< canvas pixels
        double opacity = 1;

        friend bool operator==(const Outline&, const Outline&) = default;
    };

    static void addSides(std::vector<QRectF>& areas, const Outline& outline, double scale);

    std::optional<Outline> outline_;
    bool hasEyeDropper_ = false;
};

}  // namespace marlevo
