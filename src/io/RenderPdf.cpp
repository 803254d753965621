#include "io/PdfContext.h"
#include "model/DrawingDocument.h"

#include <new>

namespace marlevo {

std::optional<std::vector<std::uint8_t>> DrawingDocument::renderPDFData() const {
    const Size page{canvasSize->width, canvasSize->height};
    if (!PdfContext::isPageSize(page)) return std::nullopt;
    try {
        PdfContext context(page);
        if (!backgroundIsTransparent) context.fillRect({{0, 0}, page}, backgroundColor);
        drawLayers(context, page.height);
        return context.finish();
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

}  // namespace marlevo
