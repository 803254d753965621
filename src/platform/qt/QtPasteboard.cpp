#include "platform/qt/QtPasteboard.h"

#include "platform/qt/QtImages.h"

#include <QClipboard>
#include <QGuiApplication>

namespace marlevo {

void QtPasteboard::setImage(const RasterImage& picture) {
    const QImage image = qImageFrom(picture);
    if (!image.isNull()) QGuiApplication::clipboard()->setImage(image);
}

}  // namespace marlevo
