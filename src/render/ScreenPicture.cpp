#include "render/ScreenPicture.h"

#include "graphics/BitmapContext.h"
#include "model/DecodedImages.h"
#include "platform/ParallelFor.h"
#include "render/DrawOnScreen.h"
#include "render/Grid.h"
#include "render/LayerRun.h"
#include "render/PaintedArea.h"
#include "render/PictureDifference.h"
#include "render/VisibleStrokes.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace marlevo {

namespace {

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

Rect onCanvas(const IntRect& area, double scale) {
    return {{area.left / scale, area.top / scale}, {area.width() / scale, area.height() / scale}};
}

/// Areas of fewer pixels are painted faster than another thread wakes up.
constexpr int leastPixelsToShare = 1 << 14;

/// Takes few areas apart so that each core gets some of them; not many, since strokes that lie in
/// two pieces are prepared twice.
std::vector<PixelBuffer> cutForAllCores(const std::vector<PixelBuffer>& areas) {
    constexpr int enough = 4;
    constexpr int leastRows = 32;
    int pixels = 0;
    for (const PixelBuffer& part : areas)
        pixels += part.area.width() * part.area.height();
    if (std::ssize(areas) >= enough || pixels < leastPixelsToShare) return areas;
    std::vector<PixelBuffer> pieces;
    const int pixelsOfPiece = pixels / 2;
    for (const PixelBuffer& part : areas) {
        const int rows = std::max(pixelsOfPiece / part.area.width(), leastRows);
        for (IntRect piece = part.area; piece.top < part.area.bottom; piece.top = piece.bottom) {
            piece.bottom = std::min(piece.top + rows, part.area.bottom);
            pieces.push_back(part.part(piece));
        }
    }
    return pieces;
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

void ScreenPicture::setGridColor(const Color& color) {
    if (color == gridColor_) return;
    gridColor_ = color;
    releaseMemory();
}

std::optional<std::vector<IntRect>> ScreenPicture::takeChanges(const DrawingDocument& document,
                                                               double scale) {
    follow(document, scale);
    std::vector<IntRect> changes;
    tiles_.forEachKnownTile([&](Tile& tile) {
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
    renderStaleTiles(document, target.area);
    tiles_.forEachKnownTile(target.area, [&](Tile& tile) {
        copyPixels(tile.pixels(), target, tile.area.intersectedWith(target.area));
    });
    strokeInProgress_.paint(target);
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
        const IntRect area = paintedArea(*stroke, contents_.scale);
        paintOver(area, [&](const PixelBuffer& part) {
            if (isJoining) return strokeInProgress_.paint(part);
            BitmapContext context(part, DeviceFrame::yDown(contents_.scale));
            drawOnScreen(context, *stroke);
        });
        if (!isJoining) markChanged(area);
    }
    const IntRect area = strokeInProgress_.update(inProgress, contents_.scale);
    if (!isJoining) markChanged(area);
}

void ScreenPicture::markStale(const IntRect& area) {
    tiles_.forEachKnownTile(area, [&](Tile& tile) {
        tile.stale = tile.stale.unitedWith(area.intersectedWith(tile.area));
    });
}

void ScreenPicture::markChanged(const IntRect& area) {
    tiles_.forEachKnownTile(area, [&](Tile& tile) {
        tile.changed = tile.changed.unitedWith(area.intersectedWith(tile.area));
    });
}

template <typename Paint>
void ScreenPicture::paintOver(const IntRect& area, Paint paint) {
    tiles_.forEachKnownTile(
        area, [&](Tile& tile) { paint(tile.pixels().part(area.intersectedWith(tile.area))); });
}

void ScreenPicture::renderStaleTiles(const DrawingDocument& document, const IntRect& area) {
    std::vector<PixelBuffer> stale;
    tiles_.forEachTile(area, [&](Tile& tile) {
        if (!tile.stale.isEmpty()) stale.push_back(tile.pixels().part(tile.stale));
        tile.stale = {};
    });
    if (stale.empty()) return;

    const std::vector<PixelBuffer> parts = cutForAllCores(stale);
    std::vector<IntRect> areas;
    areas.reserve(parts.size());
    for (const PixelBuffer& part : parts)
        areas.push_back(part.area);
    parallelFor(parts.size(), [&](std::size_t i) { renderBackground(parts[i]); });
    const auto decode = [&](const Bytes& file) { return document.decodedImages().image(file); };
    forEachRun(contents_.layers, decode, [&](const LayerRun& run) {
        auto strokes = strokesInSight(run, areas, contents_.scale);
        parallelFor(parts.size(), [&](std::size_t i) {
            if (run.image) renderImage(run, parts[i]);
            renderStrokes(std::move(strokes[i]), parts[i]);
        });
    });
}

void ScreenPicture::renderBackground(const PixelBuffer& part) const {
    clearPixels(part);
    BitmapContext context(part, DeviceFrame::yDown(contents_.scale));
    context.fillRect(contents_.canvasRect(), contents_.background);
    if (contents_.hasGrid) {
        context.fillPath(gridPath(contents_.canvasSize, onCanvas(part.area, contents_.scale)),
                         gridColor_);
    }
}

void ScreenPicture::renderImage(const LayerRun& run, const PixelBuffer& part) const {
    BitmapContext context(part, DeviceFrame::yDown(contents_.scale));
    context.setAlpha(run.layers.front()->opacity);
    context.drawImage(*run.image, contents_.canvasRect());
}

void ScreenPicture::renderStrokes(std::vector<StrokeInSight> strokes,
                                  const PixelBuffer& part) const {
    BitmapContext context(part, DeviceFrame::yDown(contents_.scale));
    const auto cover = [&](const Stroke& stroke, CoveredPixels& covered) {
        return coverOnScreen(context, stroke, covered);
    };
    for (const StrokeInSight& seen : withoutHidden(std::move(strokes), part.area, cover))
        drawOnScreen(context, *seen.stroke);
}

}  // namespace marlevo
