#include "render/ScreenPicture.h"

#include "graphics/BitmapContext.h"
#include "model/DecodedImages.h"
#include "render/DrawOnScreen.h"
#include "render/Grid.h"
#include "render/PaintedArea.h"
#include "render/PictureDifference.h"

#include <cmath>
#include <cstring>
#include <utility>

namespace marlevo {

namespace {

/// The same pixels, of which only the part `area` may be touched.
PixelBuffer partOf(const PixelBuffer& whole, const IntRect& area) {
    return {whole.pixel(area.left, area.top), whole.stride, area, whole.order};
}

void copyPixels(const PixelBuffer& from, const PixelBuffer& to, const IntRect& area) {
    const std::size_t rowBytes = static_cast<std::size_t>(area.width()) * 4;
    for (int y = area.top; y < area.bottom; ++y) {
        std::memcpy(to.pixel(area.left, y), from.pixel(area.left, y), rowBytes);
    }
}

void clearPixels(const PixelBuffer& part) {
    for (int y = part.area.top; y < part.area.bottom; ++y) {
        std::memset(part.pixel(part.area.left, y), 0,
                    static_cast<std::size_t>(part.area.width()) * 4);
    }
}

bool canBeShown(double scale) { return scale > 0 && std::isfinite(scale); }

}  // namespace

ScreenPicture::Contents ScreenPicture::Contents::of(const DrawingDocument& document, double scale) {
    return {document.layers, document.backgroundIsTransparent ? clear : *document.backgroundColor,
            document.canvasSize, scale, document.showGrid};
}

bool ScreenPicture::Contents::isSameView(const Contents& other) const {
    return background == other.background && canvasSize == other.canvasSize &&
           scale == other.scale && hasGrid == other.hasGrid;
}

std::optional<std::vector<IntRect>> ScreenPicture::takeChanges(const DrawingDocument& document,
                                                               double scale) {
    follow(document, scale);
    std::vector<IntRect> changes;
    tiles_.forEachKnownTile([&](TileCache::Tile& tile) {
        const IntRect changed = std::exchange(tile.changed, {});
        if (!changed.isEmpty()) changes.push_back(changed);
    });
    if (std::exchange(isAllChanged_, false)) return std::nullopt;
    return changes;
}

void ScreenPicture::paint(const DrawingDocument& document, double scale,
                          const PixelBuffer& target) {
    follow(document, scale);
    if (!canBeShown(scale) || target.area.isEmpty()) return;
    tiles_.forEachTile(target.area, [&](TileCache::Tile& tile) {
        const PixelBuffer pixels = tile.buffer();
        if (!tile.stale.isEmpty()) render(document, partOf(pixels, std::exchange(tile.stale, {})));
        copyPixels(pixels, target, tile.area.intersectedWith(target.area));
    });
    strokeInProgress_.paint(target);
}

void ScreenPicture::limitMemory(const IntRect& inSight) {
    if (tiles_.bytes() > maxCachedBytes) tiles_.dropTilesOutside(inSight);
}

void ScreenPicture::releaseMemory() {
    tiles_.clear();
    isAllChanged_ = true;
}

void ScreenPicture::follow(const DrawingDocument& document, double scale) {
    Contents next = Contents::of(document, scale);
    const std::optional<Stroke>& inProgress = document.currentStroke;
    if (!next.isSameView(contents_) || !canBeShown(scale)) {
        releaseMemory();
        strokeInProgress_.update(inProgress, scale);
    } else {
        showDifference(next.layers, document);
    }
    document.decodedImages().keepOnly(next.layers);
    contents_ = std::move(next);
}

void ScreenPicture::showDifference(const LayerList& after, const DrawingDocument& document) {
    const auto difference = PictureDifference::between(contents_.layers, after, contents_.scale);
    const std::optional<Stroke>& inProgress = document.currentStroke;
    // A stroke that has just joined its layer goes on looking as it did.
    const bool isJoining = !inProgress && difference.damage.empty() &&
                           difference.drawnOver.size() == 1 &&
                           strokeInProgress_.looksLike(*difference.drawnOver.front());
    for (const IntRect& area : difference.damage) {
        markStale(area);
        markChanged(area);
    }
    for (const Stroke* stroke : difference.drawnOver) {
        drawOver(*stroke);
        if (!isJoining) markChanged(paintedArea(*stroke, contents_.scale));
    }
    const IntRect area = strokeInProgress_.update(inProgress, contents_.scale);
    if (!isJoining) markChanged(area);
}

void ScreenPicture::markStale(const IntRect& area) {
    tiles_.forEachKnownTile(area, [&](TileCache::Tile& tile) {
        tile.stale = tile.stale.unitedWith(area.intersectedWith(tile.area));
    });
}

void ScreenPicture::markChanged(const IntRect& area) {
    tiles_.forEachKnownTile(area, [&](TileCache::Tile& tile) {
        tile.changed = tile.changed.unitedWith(area.intersectedWith(tile.area));
    });
}

void ScreenPicture::drawOver(const Stroke& stroke) {
    const IntRect area = paintedArea(stroke, contents_.scale);
    tiles_.forEachKnownTile(area, [&](TileCache::Tile& tile) {
        const PixelBuffer part = partOf(tile.buffer(), area.intersectedWith(tile.area));
        BitmapContext context(part, DeviceFrame::yDown(contents_.scale));
        drawOnScreen(context, stroke);
    });
}

void ScreenPicture::render(const DrawingDocument& document, const PixelBuffer& part) const {
    clearPixels(part);
    const double scale = contents_.scale;
    const CanvasSize canvas = contents_.canvasSize;
    const Rect canvasRect{{0, 0}, {canvas.width, canvas.height}};
    const Rect visible{{part.area.left / scale, part.area.top / scale},
                       {part.area.width() / scale, part.area.height() / scale}};
    BitmapContext context(part, DeviceFrame::yDown(scale));
    context.fillRect(canvasRect, contents_.background);
    if (contents_.hasGrid) {
        context.fillPath(gridPath(canvas, visible), gridColor_);
    }
    for (const Layer& layer : contents_.layers) {
        if (!layer.isVisible) continue;
        if (layer.imageData) {
            if (const auto image = document.decodedImages().image(*layer.imageData)) {
                context.setAlpha(layer.opacity);
                context.drawImage(*image, canvasRect);
            }
        }
        layer.strokes.visit(
            [&](const StrokeSummary& strokes) {
                return strokes.reaches(visible, strokes.maxLineWidth / 2 + penFringe / scale);
            },
            [&](std::size_t, const Stroke& stroke) {
                drawOnScreen(context, stroke);
                return true;
            });
    }
}

}  // namespace marlevo
