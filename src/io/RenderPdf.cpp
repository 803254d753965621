#include "io/RenderPdf.h"

#include "io/PdfContext.h"
#include "model/DrawingDocument.h"
#include "render/LayerPainting.h"
#include "render/RasterCompositing.h"

namespace marlevo {

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

}  // namespace marlevo
