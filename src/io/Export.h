#pragma once

#include "model/ExportFormat.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace marlevo {

class DrawingDocument;

/// The picture as a PDF file of one page, one point per canvas pixel, strokes as paths. Nothing if
/// a page cannot have the canvas's size (PdfContext::isPageSize) or if memory is short.
std::optional<std::vector<std::uint8_t>> renderPDFData(const DrawingDocument& document);

/// The name that a panel proposes for the picture, such as "Drawing-1280x720.png".
std::string proposedPictureName(const DrawingDocument& document, ExportFormat format);

/// Writes the picture to the file, replacing it. Failures are silent.
void exportTo(const DrawingDocument& document, const std::filesystem::path& file,
              ExportFormat format);

/// Asks for a file in a save panel, then exports to it. The panel refers to the document and must
/// be closed before the document is destroyed.
void performExport(DrawingDocument& document, ExportFormat format);

/// Sends the picture to the print dialog, after the current event. Failures are silent.
void printDocument(const DrawingDocument& document);

/// Replaces the pasteboard's contents by the picture. Changes nothing if there is no picture.
void copyToClipboard(const DrawingDocument& document);

}  // namespace marlevo
