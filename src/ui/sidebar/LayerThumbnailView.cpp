#include "ui/sidebar/LayerThumbnailView.h"

#include "platform/qt/QtImages.h"
#include "ui/controls/ControlPainting.h"
#include "ui/controls/SemanticColors.h"
#include "ui/sidebar/SidebarAccessibility.h"

#include <QPainter>
#include <QPainterPath>

namespace marlevo {

namespace {

constexpr QSize frame(44, 32);
constexpr double radius = 4;

}  // namespace

LayerThumbnailView::LayerThumbnailView(const Services& services, ImageCache& images,
                                       QWidget* parent)
    : QWidget(parent), thumbnail_(services, images, [this] { update(); }) {
    installSidebarAccessibility();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LayerThumbnailView::showLayer(const Layer& layer, CanvasSize canvas) {
    layer_ = layer;
    canvas_ = canvas;
    setAccessibleName(QString::fromStdString(layer.name));
    if (isVisible()) thumbnail_.show(layer, canvas);
    update();
}

void LayerThumbnailView::setActive(bool isActive) {
    isActive_ = isActive;
    update();
}

void LayerThumbnailView::showEvent(QShowEvent*) {
    if (layer_) thumbnail_.show(*layer_, canvas_);
}

QSize LayerThumbnailView::sizeHint() const { return frame; }

void LayerThumbnailView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QColor gray = semanticColor(SemanticColor::gray);
    const Outline outline = isActive_ ? Outline{semanticColor(SemanticColor::blue), 2}
                                      : Outline{withOpacity(gray, opacity::thumbnailOutline), 1};
    QPainterPath shape;
    shape.addRoundedRect(rect(), radius, radius);
    if (const auto& picture = thumbnail_.cgImage()) {
        painter.setClipPath(shape);
        painter.drawImage(rect(), qImageFrom(*picture));
        painter.setClipping(false);
    } else {
        painter.fillPath(shape, withOpacity(gray, opacity::thumbnailPlaceholder));
    }
    paintRoundedRect(painter, rect(), radius, Qt::transparent, outline);
}

}  // namespace marlevo
