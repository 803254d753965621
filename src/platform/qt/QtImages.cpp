#include "platform/qt/QtImages.h"

#include <QPainter>
#include <QtEndian>

#include <memory>

namespace marlevo {

namespace {

/// Makes a pixel a point, 1/72 inch, on all screens.
void setPixelsToPoints(QImage& image) {
    constexpr int dotsPerMeter = 2835;
    image.setDotsPerMeterX(dotsPerMeter);
    image.setDotsPerMeterY(dotsPerMeter);
}

}  // namespace

// QRgb is 0xAARRGGBB: its big-endian bytes have the order of RasterImage.
RasterImage rasterFrom(QImage image) {
    for (int y = 0; y < image.height(); ++y) {
        uchar* const row = image.scanLine(y);
        qToBigEndian<quint32>(row, image.width(), row);
    }
    const int width = image.width();
    const int height = image.height();
    const auto owner = std::make_shared<const QImage>(std::move(image));
    const std::span bytes(owner->constBits(), static_cast<std::size_t>(owner->sizeInBytes()));
    return {width, height, bytes, owner};
}

QImage qImageFrom(const RasterImage& raster) {
    QImage image(raster.width(), raster.height(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) return image;
    setPixelsToPoints(image);
    const std::size_t rowBytes =
        static_cast<std::size_t>(raster.width()) * RasterImage::bytesPerPixel;
    const std::uint8_t* row = raster.bytes().data();
    for (int y = 0; y < raster.height(); ++y, row += rowBytes)
        qFromBigEndian<quint32>(row, raster.width(), image.scanLine(y));
    return image;
}

QImage onWhite(const QImage& image) {
    QImage flat(image.size(), QImage::Format_RGB32);
    if (flat.isNull()) return flat;
    flat.fill(Qt::white);
    setPixelsToPoints(flat);
    QPainter(&flat).drawImage(0, 0, image);
    return flat;
}

}  // namespace marlevo
