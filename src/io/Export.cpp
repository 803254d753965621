#include "io/FileTypes.h"
#include "model/DrawingDocument.h"
#include "platform/FilePanels.h"
#include "platform/ImageCodec.h"

#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

namespace marlevo {

namespace {

std::optional<ImageCodec::Format> rasterFormat(ExportFormat format) {
    switch (format) {
    case ExportFormat::png:
        return ImageCodec::Format::png;
    case ExportFormat::jpeg:
        return ImageCodec::Format::jpeg;
    case ExportFormat::tiff:
        return ImageCodec::Format::tiff;
    case ExportFormat::bmp:
        return ImageCodec::Format::bmp;
    case ExportFormat::pdf:
        break;
    }
    return std::nullopt;
}

/// The picture as a file in the format; nothing when there is no picture or it cannot be encoded.
std::optional<std::vector<std::uint8_t>> encodedPicture(const DrawingDocument& document,
                                                        ExportFormat format) {
    const auto raster = rasterFormat(format);
    if (!raster) return document.renderPDFData();
    const ImageCodec* codec = document.services().imageCodec;
    if (codec == nullptr) return std::nullopt;
    const auto image = document.renderCGImage();
    return image ? codec->encode(*image, *raster) : std::nullopt;
}

/// A side of the canvas as it stands in a file name. Beyond the integers there is no such number:
/// those read as 0.
std::string wholeNumber(double value) {
    const bool fits = value > -0x1p63 && value < 0x1p63;
    return std::to_string(fits ? static_cast<std::int64_t>(value) : 0);
}

}  // namespace

std::string DrawingDocument::proposedPictureName(ExportFormat format) const {
    return services_.translate("Files", "Drawing-") + wholeNumber(canvasSize->width) + "x" +
           wholeNumber(canvasSize->height) + "." + fileType(format, services_).extensions.front();
}

void DrawingDocument::exportTo(const std::filesystem::path& file, ExportFormat format) {
    const auto bytes = encodedPicture(*this, format);
    if (!bytes) return;
    std::ofstream(file, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes->data()),
               static_cast<std::streamsize>(bytes->size()));
}

void DrawingDocument::performExport(ExportFormat format) {
    if (services_.filePanels == nullptr) return;
    const FileType type = fileType(format, services_);
    services_.filePanels->showSavePanel(
        {services_.translate("Files", "Export Drawing"), type, proposedPictureName(format),
         std::nullopt},
        [this, format](const std::optional<std::filesystem::path>& file) {
            if (file) exportTo(*file, format);
        });
}

}  // namespace marlevo
