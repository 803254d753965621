#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace marlevo {

class DrawingDocument;

/// The picture as a PDF file of one page, one point per canvas pixel, strokes as paths. Nothing if
/// a page cannot have the canvas's size (PdfContext::isPageSize) or if memory is short.
std::optional<std::vector<std::uint8_t>> renderPDFData(const DrawingDocument& document);

}  // namespace marlevo
