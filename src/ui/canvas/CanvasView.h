#pragma once

#include "io/ImageDrop.h"
#include "model/DrawingDocument.h"
#include "model/Follower.h"
#include "render/ScreenPicture.h"
#include "tools/ClickDetector.h"
#include "tools/PointerGesture.h"
#include "ui/canvas/CanvasOverlay.h"
#include "ui/canvas/ReleaseWatch.h"

#include <QWidget>

#include <cstdint>
#include <vector>

namespace marlevo {

class DevicePixels;

/// The drawing surface: shows the document's picture and turns pointer events into calls of the
/// document's editing operations. The owner keeps it exactly as large as the canvas is shown.
///
/// Keeps no copy of the drawing: each paint and each event reads the document afresh. After a
/// change, only the pixels that differ are painted.
class CanvasView final : public QWidget {
    Q_OBJECT

public:
    /// The document and the cache must outlive the view.
    CanvasView(DrawingDocument& document, ImageCache& images, QWidget* parent = nullptr);

    const DrawingDocument& document() const { return document_; }

    /// Ends a press on the canvas: what it did so far stays, and the rest of it does nothing.
    void interruptGesture();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void updateColors();
    void follow(DocumentProperty property);
    void updateWhatChanged();
    void updateOverlay();
    void updateDevicePixels(const QRectF& area);

    double deviceScale() const { return document_.zoom * devicePixelRatioF(); }
    void paintPicture(const DevicePixels& pixels, const QRect& exposed);
    void showPointerOfTool();

    Point viewPoint(const QMouseEvent& event) const;
    Point canvasPoint(Point viewPoint) const;

    DrawingDocument& document_;
    ScreenPicture picture_;
    CanvasOverlay shownOverlay_;
    bool isChangeAnnounced_ = false;
    std::vector<std::uint8_t> frame_;  ///< the pixels of one paint; reused by the next
    PointerGesture gesture_;
    ClickDetector clickDetector_;
    ReleaseWatch releaseWatch_;
    ImageDrop imageDrop_;
    Reader reader_;
    Follower pointerShape_;
};

}  // namespace marlevo
