#include "io/PdfContext.h"
#include "model/DrawingDocument.h"

namespace marlevo {

std::optional<std::vector<std::uint8_t>> DrawingDocument::renderPDFData() const {
    const Size page{canvasSize->width, canvasSize->height};
    if (!PdfContext::isPageSize(page)) return std::nullopt;
    PdfContext context(page);
    if (!backgroundIsTransparent) context.fillRect({{0, 0}, page}, backgroundColor);
    drawLayers(context, page.height);
    return context.finish();
}

}  // namespace marlevo
