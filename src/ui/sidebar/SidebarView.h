#pragma once

#include "model/DrawingDocument.h"

#include <QScrollArea>

namespace marlevo {

class ImageCache;

/// The column beside the canvas with everything that is set before drawing, the actions on the
/// document and its layers. Every control shows what the document says and changes nothing else;
/// which sections are open is the view's own.
class SidebarView final : public QScrollArea {
    Q_OBJECT

public:
    /// Limits of its width, in points, between which it should open.
    static constexpr int leastWidth = 200;
    static constexpr int idealWidth = 220;
    static constexpr int greatestWidth = 280;

    /// The document and the cache, for its thumbnails, must outlive the view.
    SidebarView(DrawingDocument& document, ImageCache& images, QWidget* parent = nullptr);

    /// As wide as the content needs, within the limits.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addSections(DrawingDocument& document, ImageCache& images);
    void updateColors();
    void makeRoomForScrollBar();

    QWidget* column_;
};

}  // namespace marlevo
