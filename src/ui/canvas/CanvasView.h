#pragma once

#include "io/ImageDrop.h"
#include "model/DrawingDocument.h"
#include "render/ScreenPicture.h"
#include "ui/Follower.h"
#include "ui/canvas/PointerDrag.h"

#include <QWidget>

#include <cstdint>
#include <optional>
#include <vector>

namespace marlevo {

class DevicePixels;

/// The drawing surface: shows the document's picture and turns the pointer into calls of the
/// document's editing operations. Its owner keeps it exactly as large as the canvas is shown.
///
/// Holds nothing of the drawing itself: each paint and each event reads the document afresh. After
/// a change of what it shows, the view looks which pixels would be others now, and paints these.
class CanvasView final : public QWidget {
    Q_OBJECT

public:
    /// The document must outlive the view.
    explicit CanvasView(DrawingDocument& document, QWidget* parent = nullptr);

    const DrawingDocument& document() const { return document_; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    /// The outline around the selected stroke as it is shown.
    struct Outline {
        Rect rect;  ///< canvas pixels
        double opacity = 1;

        friend bool operator==(const Outline&, const Outline&) = default;
    };

    /// What lies over the picture.
    struct Overlay {
        std::optional<Outline> outline;
        bool hasEyeDropper = false;

        static Overlay of(const DrawingDocument& document);
    };

    void takeColors();
    void follow(DocumentProperty property);
    void updateWhatChanged();
    void updateOverlay();
    void updateOutline(const std::optional<Outline>& outline);
    void updateDevicePixels(const QRectF& area);

    double deviceScale() const { return document_.zoom * devicePixelRatioF(); }
    void paintPicture(const DevicePixels& pixels, const QRect& exposed);
    void paintOutline(QImage& frame, QPoint origin, const Outline& outline) const;
    QRectF eyeDropperPlace() const;
    void showPointerOfTool();

    QPointF position(const QMouseEvent& event) const;
    Point canvasPoint(QPointF position) const;

    void dragChanged(QPointF position);
    void dragEnded();
    void clicked(QPointF position);
    void endInterruptedDrag();

    DrawingDocument& document_;
    ScreenPicture picture_;
    Overlay shownOverlay_;
    bool isChangeAnnounced_ = false;
    std::vector<std::uint8_t> frame_;  ///< pixels on their way to the window, kept to be reused
    PointerDrag drag_;
    ImageDrop imageDrop_;
    Reader reader_;
    Follower pointerShape_;
};

}  // namespace marlevo
