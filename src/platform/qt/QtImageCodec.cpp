#include "platform/qt/QtImageCodec.h"

#include "platform/MutedStandardError.h"
#include "platform/qt/QtImages.h"
#include "platform/qt/SvgImage.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace marlevo {

namespace {

constexpr int jpegQuality = 90;

bool exceedsLimit(QSize size) {
    return std::int64_t{size.width()} * size.height() > ImageCodec::maxDecodedPixels;
}

/// The plug-ins of other packages may reach further than these formats do.
bool isAllowed(const QByteArray& format) {
    constexpr std::array<std::string_view, 11> allowed{"png", "jpeg", "tiff", "bmp",  "gif", "webp",
                                                       "ico", "avif", "heif", "heic", "jxl"};
    return std::ranges::find(allowed, format.toStdString()) != allowed.end();
}

QImage decodedImage(QByteArray file) {
    QBuffer device(&file);
    QImageReader reader(&device);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    // Before all else: a handler may open files as soon as it is asked for the size.
    const QByteArray format = reader.format();
    if (format == "svg") return svgImage(file);
    // The size in the file's header, before memory is allocated. For formats without one, and for
    // pictures inside a container, the allocation limit applies.
    if (!isAllowed(format) || exceedsLimit(reader.size())) return {};
    return reader.read();
}

}  // namespace

QtImageCodec::QtImageCodec() {
    constexpr std::int64_t bytes = maxDecodedPixels * std::int64_t{RasterImage::bytesPerPixel};
    QImageReader::setAllocationLimit(static_cast<int>(bytes >> 20));
    const MutedStandardError firstOfTheProgram;
}

std::optional<RasterImage> QtImageCodec::decode(std::span<const std::uint8_t> file) const {
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(file.data()),
                                                     static_cast<qsizetype>(file.size()));
    // A damaged picture prints no messages, neither the toolkit's nor those of its libraries.
    const MutedStandardError muted;
    QImage image = decodedImage(bytes);
    if (image.isNull() || exceedsLimit(image.size())) return std::nullopt;
    if (image.colorSpace().isValid() && image.colorSpace() != QColorSpace::SRgb)
        image.convertToColorSpace(QColorSpace::SRgb);
    image.convertTo(QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) return std::nullopt;
    return rasterFrom(std::move(image));
}

std::optional<std::vector<std::uint8_t>> QtImageCodec::encode(const RasterImage& raster,
                                                              Format format) const {
    QBuffer device;
    QImageWriter writer;
    writer.setDevice(&device);
    QImage image = qImageFrom(raster);
    switch (format) {
    case Format::png:
        writer.setFormat("png");
        image.convertTo(QImage::Format_ARGB32);
        break;
    case Format::jpeg:
        writer.setFormat("jpeg");
        writer.setQuality(jpegQuality);
        image = onWhite(image);
        break;
    case Format::tiff:
        writer.setFormat("tiff");
        image.convertTo(QImage::Format_ARGB32);
        break;
    case Format::bmp:
        writer.setFormat("bmp");
        image = onWhite(image);
        break;
    }
    if (image.isNull() || !writer.write(image)) return std::nullopt;
    const QByteArray& file = device.data();
    return std::vector<std::uint8_t>(file.begin(), file.end());
}

}  // namespace marlevo
