#include "ui/controls/Icons.h"

#include "ui/controls/IconDrawing.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <array>
#include <cmath>
#include <optional>

// The linker drops the resources of a static library unless Q_INIT_RESOURCE names them, which works
// outside of namespaces only.
static void makeIconsAvailable() { Q_INIT_RESOURCE(icons); }

namespace marlevo {

namespace {

constexpr std::array fileNames{
    "arrow-down",      "arrow-pointer", "arrow-up",  "arrows-outward",
    "check-circle",    "chevron-right", "circle",    "document-arrow-down",
    "document-plus",   "eraser",        "eye",       "eye-slash",
    "eyedropper",      "grid",          "layers",    "line-diagonal",
    "minus",           "paint-bucket",  "palette",   "pencil",
    "photo",           "plus",          "rectangle", "redo-arrow",
    "tray-arrow-down", "undo-arrow",
};
static_assert(fileNames.size() == std::size_t(Icon::undoArrow) + 1);

QString resource(const char* name) {
    makeIconsAvailable();
    return QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name));
}

const IconDrawing& drawingOf(Icon icon) {
    static std::array<std::optional<IconDrawing>, fileNames.size()> drawings;
    auto& drawing = drawings[std::size_t(icon)];
    if (!drawing) {
        QSvgRenderer renderer(resource(fileNames[std::size_t(icon)]));
        drawing.emplace(renderer);
    }
    return *drawing;
}

/// A picture that has colours of its own.
QIcon iconOf(const char* name) {
    QSvgRenderer renderer(resource(name));
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 96, 128, 256}) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        renderer.render(&painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

}  // namespace

void paintIcon(QPainter& painter, Icon icon, const QRectF& rect, const QColor& color) {
    const double side = std::min(rect.width(), rect.height());
    const double ratio = painter.device()->devicePixelRatioF();
    const int pixels = int(std::ceil(side * ratio));
    if (pixels < 1) return;

    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter inside(&image);
    drawingOf(icon).paint(inside, pixels);
    inside.setCompositionMode(QPainter::CompositionMode_SourceIn);
    inside.fillRect(image.rect(), color);
    inside.end();
    image.setDevicePixelRatio(ratio);

    // Aligned to whole device pixels, because resampling blurs it.
    const QPointF corner = rect.center() - QPointF(side, side) / 2;
    const QTransform toDevice = painter.deviceTransform();
    const QPointF onPixel = toDevice.map(corner);
    const bool turned = toDevice.isRotating();
    if (turned) painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(turned ? corner : toDevice.inverted().map(QPointF(onPixel.toPoint())), image);
}

QIcon applicationIcon() { return iconOf("marlevo"); }

QIcon warningIcon() { return iconOf("warning"); }

}  // namespace marlevo
