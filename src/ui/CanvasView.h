#pragma once

#include "model/DrawingDocument.h"
#include "render/ScreenPicture.h"
#include "ui/PointerDrag.h"

#include <QImage>
#include <QWidget>

namespace marlevo {

/// The drawing surface: shows the document's picture and turns the pointer into calls of the
/// document's editing operations. Its owner keeps it exactly as large as the canvas is shown.
///
/// Holds nothing of the drawing itself: each paint and each event reads the document afresh, and a
/// change of a property that the last paint read paints anew.
class CanvasView final : public QWidget {
    Q_OBJECT

public:
    /// The document must outlive the view.
    explicit CanvasView(DrawingDocument& document, QWidget* parent = nullptr);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void paintPicture(QPainter& painter, const QRect& exposed);

    QPointF position(const QMouseEvent& event) const;
    Point canvasPoint(QPointF position) const;

    void dragChanged(QPointF position);
    void dragEnded();
    void endInterruptedDrag();

    DrawingDocument& document_;
    ScreenPicture picture_;
    QImage frame_;  ///< pixels on their way to the window, kept to be reused
    PointerDrag drag_;
    Reader reader_;
};

}  // namespace marlevo
