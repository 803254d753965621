#include "io/Export.h"

#include "io/FileTypes.h"
#include "io/PdfContext.h"
#include "io/WriteFile.h"
#include "model/DrawingDocument.h"
#include "platform/FilePanels.h"
#include "platform/ImageCodec.h"
#include "platform/MainQueue.h"
#include "platform/Pasteboard.h"
#include "platform/Printer.h"
#include "render/LayerPainting.h"
#include "render/RasterCompositing.h"

#include <exception>
#include <string>
#include <utility>

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

/// The picture as a file in the format. Nothing if there is no picture or it cannot be encoded.
std::optional<std::vector<std::uint8_t>> encodedPicture(const DrawingDocument& document,
                                                        ExportFormat format) {
    const auto raster = rasterFormat(format);
    if (!raster) return renderPDFData(document);
    const ImageCodec* codec = document.services().imageCodec;
    if (codec == nullptr) return std::nullopt;
    const auto image = renderCGImage(document);
    return image ? codec->encode(*image, *raster) : std::nullopt;
}

/// A side of the canvas as a whole number for a file name. "0" if it is beyond 64-bit integers.
std::string wholeNumber(double value) {
    const bool fits = value > -0x1p63 && value < 0x1p63;
    return std::to_string(fits ? static_cast<std::int64_t>(value) : 0);
}

std::string jobTitle(const std::optional<std::filesystem::path>& file) {
    return file ? file->filename().string() : "Marlevo";
}

}  // namespace

std::optional<std::vector<std::uint8_t>> renderPDFData(const DrawingDocument& document) {
    const Picture picture = pictureOf(document);
    const Size page{picture.canvasSize.width, picture.canvasSize.height};
    if (!PdfContext::isPageSize(page)) return std::nullopt;
    try {
        PdfContext context(page);
        if (!document.backgroundIsTransparent) context.fillRect({{0, 0}, page}, picture.background);
        BorrowedImages images(document);
        drawLayers(context, picture.layers, picture.canvasSize, page.height,
                   [&](const Bytes& file) { return images.cache().image(file); });
        return context.finish();
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

std::string proposedPictureName(const DrawingDocument& document, ExportFormat format) {
    const Services& services = document.services();
    const CanvasSize canvas = document.canvasSize;
    return services.translate("Files", "Drawing-") + wholeNumber(canvas.width) + "x" +
           wholeNumber(canvas.height) + "." + fileType(format, services).extensions.front();
}

void exportTo(const DrawingDocument& document, const std::filesystem::path& file,
              ExportFormat format) {
    const auto bytes = encodedPicture(document, format);
    if (!bytes) return;
    auto written = writeWholeFile(file, *bytes);
    if (written)
        flushBehind(document.services().flushQueue, std::move(*written), [](const Failure&) {});
}

void performExport(DrawingDocument& document, ExportFormat format) {
    const Services& services = document.services();
    if (services.filePanels == nullptr) return;
    services.filePanels->showSavePanel(
        {services.translate("Files", "Export Drawing"), fileType(format, services),
         proposedPictureName(document, format), std::nullopt},
        [&document, format](const std::optional<std::filesystem::path>& file) {
            if (file) exportTo(document, *file, format);
        });
}

void printDocument(const DrawingDocument& document) {
    const Services& services = document.services();
    if (services.printer == nullptr || services.mainQueue == nullptr) return;
    auto picture = renderCGImage(document);
    if (!picture) return;
    const CanvasSize canvas = document.canvasSize;
    // By value: the document may be destroyed before the queue runs this.
    services.mainQueue->post(
        [printer = services.printer, picture = *std::move(picture),
         size = Size{canvas.width, canvas.height},
         title = jobTitle(document.currentFileURL)] { printer->print(picture, size, title); });
}

void copyToClipboard(const DrawingDocument& document) {
    Pasteboard* const pasteboard = document.services().pasteboard;
    if (pasteboard == nullptr) return;
    if (const auto picture = renderCGImage(document)) pasteboard->setImage(*picture);
}

}  // namespace marlevo
