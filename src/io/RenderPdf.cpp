#include "io/RenderPdf.h"

#include "io/PdfContext.h"
#include "model/DrawingDocument.h"
#include "render/LayerPainting.h"

namespace marlevo {

std::optional<std::vector<std::uint8_t>> renderPDFData(const DrawingDocument& document) {
    const CanvasSize canvas = document.canvasSize;
    const Size page{canvas.width, canvas.height};
    if (!PdfContext::isPageSize(page)) return std::nullopt;
    PdfContext context(page);
    if (!document.backgroundIsTransparent)
        context.fillRect({{0, 0}, page}, document.backgroundColor);
    drawLayers(context, document.layers, canvas, page.height,
               [&](const Bytes& file) { return document.decodedImages().image(file); });
    return context.finish();
}

}  // namespace marlevo
