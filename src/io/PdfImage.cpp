#include "io/PdfImage.h"

#include "io/DeflateStream.h"

#include <algorithm>
#include <string>
#include <vector>

namespace marlevo {

namespace {

std::string imageEntries(int width, int height, const char* colorSpace) {
    return "/Type /XObject /Subtype /Image /Width " + std::to_string(width) + " /Height " +
           std::to_string(height) + " /ColorSpace /" + colorSpace +
           " /BitsPerComponent 8 /Interpolate true ";
}

/// Compresses rows of samples, each stored as its difference to the row above: filter 2 ("up") of
/// the PNG format, which readers undo.
class RowCompressor {
public:
    explicit RowCompressor(std::size_t rowSize) : above_(rowSize), filtered_(rowSize + 1) {}

    void append(std::span<const std::uint8_t> row) {
        constexpr std::uint8_t up = 2;
        filtered_[0] = up;
        for (std::size_t i = 0; i < row.size(); ++i)
            filtered_[i + 1] = static_cast<std::uint8_t>(row[i] - above_[i]);
        above_.assign(row.begin(), row.end());
        stream_.append(filtered_);
    }

    std::vector<std::uint8_t> finish() { return stream_.finish(); }

    static std::string entries(int samplesPerPixel, int width) {
        return "/Filter /FlateDecode /DecodeParms << /Predictor 15 /Colors " +
               std::to_string(samplesPerPixel) + " /Columns " + std::to_string(width) + " >>";
    }

private:
    std::vector<std::uint8_t> above_;
    std::vector<std::uint8_t> filtered_;
    DeflateStream stream_{DeflateStream::Content::pixels};
};

/// Calls `visit` with the bytes of each row, top row first.
template <typename Visit>
void forEachRow(const RasterImage& image, Visit visit) {
    const std::size_t rowSize =
        static_cast<std::size_t>(image.width()) * RasterImage::bytesPerPixel;
    const auto bytes = image.bytes();
    for (std::size_t at = 0; at < bytes.size(); at += rowSize)
        visit(bytes.subspan(at, rowSize));
}

bool isOpaque(const RasterImage& image) {
    const auto bytes = image.bytes();
    for (std::size_t at = 0; at < bytes.size(); at += RasterImage::bytesPerPixel)
        if (bytes[at] != 255) return false;
    return true;
}

PdfFile::Object addAlpha(PdfFile& file, const RasterImage& image) {
    std::vector<std::uint8_t> row(static_cast<std::size_t>(image.width()));
    RowCompressor rows(row.size());
    forEachRow(image, [&](std::span<const std::uint8_t> pixels) {
        for (std::size_t x = 0; x < row.size(); ++x)
            row[x] = pixels[x * RasterImage::bytesPerPixel];
        rows.append(row);
    });
    return file.addStream(imageEntries(image.width(), image.height(), "DeviceGray") +
                              RowCompressor::entries(1, image.width()),
                          rows.finish());
}

}  // namespace

PdfFile::Object addPdfImage(PdfFile& file, const RasterImage& image) {
    constexpr int samples = 3;
    std::string entries = imageEntries(image.width(), image.height(), "DeviceRGB") +
                          RowCompressor::entries(samples, image.width());
    if (!isOpaque(image)) entries += " /SMask " + PdfFile::reference(addAlpha(file, image));

    std::vector<std::uint8_t> row(static_cast<std::size_t>(image.width()) * samples);
    RowCompressor rows(row.size());
    forEachRow(image, [&](std::span<const std::uint8_t> pixels) {
        std::uint8_t* out = row.data();
        for (std::size_t at = 0; at < pixels.size(); at += RasterImage::bytesPerPixel) {
            const unsigned alpha = pixels[at];
            for (std::size_t i = 1; i <= samples; ++i) {
                const unsigned value = pixels[at + i];
                // A page wants colours that are not premultiplied.
                *out++ = static_cast<std::uint8_t>(
                    alpha == 0 ? 0 : std::min((value * 255 + alpha / 2) / alpha, 255U));
            }
        }
        rows.append(row);
    });
    return file.addStream(entries, rows.finish());
}

PdfFile::Object addPdfImage(PdfFile& file, const EmbeddableJpeg& jpeg,
                            std::span<const std::uint8_t> bytes) {
    return file.addStream(
        imageEntries(jpeg.width, jpeg.height, jpeg.isGray ? "DeviceGray" : "DeviceRGB") +
            "/Filter /DCTDecode",
        bytes);
}

}  // namespace marlevo
