#pragma once

#include "model/DrawingDocument.h"

#include <QScrollArea>

namespace marlevo {

class ImageCache;

/// The column beside the canvas: settings of new strokes, tools, actions on the document, view and
/// layers. Its controls show and change properties of the document. The view itself stores only
/// which sections are open.
class SidebarView final : public QScrollArea {
    Q_OBJECT

public:
    /// Range and preferred value of the width, in view points.
    static constexpr int leastWidth = 200;
    static constexpr int idealWidth = 220;
    static constexpr int greatestWidth = 280;

    /// The document and the cache, for its thumbnails, must outlive the view.
    SidebarView(DrawingDocument& document, ImageCache& images, QWidget* parent = nullptr);

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
