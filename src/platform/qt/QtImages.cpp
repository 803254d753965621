#include "platform/qt/QtImages.h"

#include <QPainter>
#include <QtEndian>

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
RasterImage rasterFrom(const QImage& image) {
    const auto width = static_cast<std::size_t>(image.width());
    std::vector<std::uint8_t> bytes(width * static_cast<std::size_t>(image.height()) *
                                    RasterImage::bytesPerPixel);
    std::uint8_t* row = bytes.data();
    for (int y = 0; y < image.height(); ++y, row += width * RasterImage::bytesPerPixel)
        qToBigEndian<quint32>(image.constScanLine(y), image.width(), row);
    return {image.width(), image.height(), std::move(bytes)};
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
