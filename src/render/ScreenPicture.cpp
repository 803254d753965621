#include "render/ScreenPicture.h"

#include "graphics/BitmapContext.h"
#include "model/DecodedImages.h"
#include "platform/ParallelFor.h"
#include "render/DrawOnScreen.h"
#include "render/Grid.h"
#include "render/LayerRun.h"
#include "render/PaintedArea.h"
#include "render/PictureDifference.h"
#include "render/StrokesInSight.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <thread>
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

/// What is left of a rectangle when `end`, which has three of its edges, is cut off.
IntRect without(const IntRect& end, const IntRect& all) {
    if (end.bottom < all.bottom) return {all.left, end.bottom, all.right, all.bottom};
    if (end.top > all.top) return {all.left, all.top, all.right, end.top};
    if (end.right < all.right) return {end.right, all.top, all.right, all.bottom};
    return {all.left, all.top, end.left, all.bottom};
}

/// Takes from `stale` what lies in `asked`, a margin around it, and as much more as it takes to
/// leave a rectangle.
IntRect takeAround(const IntRect& asked, IntRect& stale) {
    constexpr int margin = 64;
    IntRect rows = stale;
    if (asked.bottom + margin < stale.bottom) {
        rows.bottom = asked.bottom + margin;
    } else {
        rows.top = std::max(stale.top, asked.top - margin);
    }
    IntRect columns = stale;
    if (asked.right + margin < stale.right) {
        columns.right = asked.right + margin;
    } else {
        columns.left = std::max(stale.left, asked.left - margin);
    }
    const IntRect taken = rows.area() < columns.area() ? rows : columns;
    stale = without(taken, stale);
    return taken;
}

/// Less is painted faster than another thread wakes up.
constexpr int leastPixelsToShare = 1 << 14;
constexpr std::size_t leastStrokesToShare = 64;

/// Cuts an area across its longer side into at most `count` pieces that are not too slim.
void cut(const PixelBuffer& part, int count, std::vector<PixelBuffer>& pieces) {
    constexpr int slimmest = 16;
    const IntRect& area = part.area;
    const bool isWide = area.width() > area.height();
    const int length = isWide ? area.width() : area.height();
    const int step = std::max((length + count - 1) / count, slimmest);
    for (int at = 0; at < length; at += step) {
        const int end = std::min(at + step, length);
        pieces.push_back(
            part.part(isWide ? IntRect{area.left + at, area.top, area.left + end, area.bottom}
                             : IntRect{area.left, area.top + at, area.right, area.top + end}));
    }
}

/// Takes large areas apart so that each core gets its share; not further, since strokes that lie in
/// two pieces are prepared twice.
std::vector<PixelBuffer> cutForAllCores(const std::vector<PixelBuffer>& areas,
                                        std::size_t strokes) {
    const auto cores = static_cast<int>(std::max(std::thread::hardware_concurrency(), 1U));
    std::int64_t pixels = 0;
    for (const PixelBuffer& part : areas)
        pixels += part.area.area();
    if (pixels < leastPixelsToShare && strokes < leastStrokesToShare) return areas;
    std::vector<PixelBuffer> pieces;
    for (const PixelBuffer& part : areas)
        cut(part, static_cast<int>(1 + part.area.area() * cores / (pixels + 1)), pieces);
    return pieces;
}

bool canBeShown(double scale) { return scale > 0 && std::isfinite(scale); }

}  // namespace

ScreenPicture::Contents ScreenPicture::Contents::of(const DrawingDocument& document, double scale) {
    return {document.layers, document.backgroundIsTransparent ? clear : *document.backgroundColor,
            document.canvasSize, scale, document.showGrid};
}

/// What lies below the layers, and where it ends.
bool ScreenPicture::Contents::hasSameGround(const Contents& other) const {
    return background == other.background && canvasSize == other.canvasSize &&
           hasGrid == other.hasGrid;
}

IntRect ScreenPicture::Contents::canvasPixels() const {
    // Where an edge lies within a pixel, all of that pixel may be painted.
    constexpr double farthest = 1 << 30;
    const auto edge = [farthest](double device) {
        return device > 0 ? static_cast<int>(std::ceil(std::min(device, farthest))) : 0;
    };
    return {0, 0, edge(canvasSize.width * scale), edge(canvasSize.height * scale)};
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
    prepare(document, scale, target.area);
    if (!canBeShown(scale) || target.area.isEmpty()) return;
    const IntRect seen = target.area.intersectedWith(contents_.canvasPixels());
    if (seen != target.area) clearPixels(target);
    if (seen.isEmpty()) return;
    tiles_.forEachKnownTile(seen, [&](Tile& tile) {
        copyPixels(tile.pixels(), target, tile.area.intersectedWith(seen));
    });
    strokeInProgress_.paint(target.part(seen));
}

void ScreenPicture::prepare(const DrawingDocument& document, double scale, const IntRect& area) {
    follow(document, scale);
    if (canBeShown(scale))
        renderStaleTiles(document, area.intersectedWith(contents_.canvasPixels()));
}

std::size_t ScreenPicture::cachedBytes() const {
    std::size_t tiles = tiles_.size();
    for (const OtherScale& other : otherScales_)
        tiles += other.tiles.size();
    return tiles * tileBytes;
}

void ScreenPicture::limitMemory(const IntRect& inSight) {
    while (cachedBytes() > maxCachedBytes && !otherScales_.empty())
        otherScales_.erase(otherScales_.begin());
    if (cachedBytes() > maxCachedBytes) tiles_.dropTilesOutside(inSight);
}

void ScreenPicture::releaseMemory() {
    tiles_.clear();
    otherScales_.clear();
    isAllChanged_ = true;
}

void ScreenPicture::follow(const DrawingDocument& document, double scale) {
    Contents next = Contents::of(document, scale);
    const std::optional<Stroke>& inProgress = document.currentStroke;
    if (!next.hasSameGround(contents_) || !canBeShown(scale) || !canBeShown(contents_.scale)) {
        releaseMemory();
        strokeInProgress_.update(inProgress, scale);
    } else {
        showDifference(next.layers, document);
        if (scale != contents_.scale) {
            changeScale(scale);
            strokeInProgress_.update(inProgress, scale);
        }
    }
    document.decodedImages().keepOnly(next.layers);
    contents_ = std::move(next);
}

void ScreenPicture::changeScale(double scale) {
    if (tiles_.size() > 0) otherScales_.push_back({contents_.scale, std::exchange(tiles_, {})});
    const auto known = std::ranges::find(otherScales_, scale, &OtherScale::scale);
    if (known != otherScales_.end()) {
        tiles_ = std::move(known->tiles);
        otherScales_.erase(known);
    }
    isAllChanged_ = true;
}

void ScreenPicture::showDifference(const LayerList& after, const DrawingDocument& document) {
    const auto difference = PictureDifference::between(contents_.layers, after, contents_.scale);
    if (!difference.isEmpty()) otherScales_.clear();
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
    IntRect whole;
    tiles_.forEachTile(area, [&](Tile& tile) {
        if (tile.stale.intersectedWith(area).isEmpty()) return;
        tile.stale = tile.stale.intersectedWith(contents_.canvasPixels());
        const IntRect part = takeAround(area, tile.stale);
        stale.push_back(tile.pixels().part(part));
        whole = whole.unitedWith(part);
    });
    if (stale.empty()) return;
    try {
        render(document, stale, whole);
    } catch (...) {
        releaseMemory();  // rather than show tiles that are half painted
        throw;
    }
}

void ScreenPicture::render(const DrawingDocument& document, const std::vector<PixelBuffer>& stale,
                           const IntRect& whole) const {
    document.decodedImages().decodeAhead(contents_.layers);
    parallelFor(stale.size(), [&](std::size_t i) { renderBackground(stale[i]); });
    const auto decode = [&](const Bytes& file) { return document.decodedImages().image(file); };
    forEachRun(contents_.layers, decode, [&](const LayerRun& run) {
        const StrokesInSight strokes(run, whole, contents_.scale);
        const auto parts = cutForAllCores(stale, strokes.count());
        parallelFor(parts.size(), [&](std::size_t i) {
            if (run.image) renderImage(run, parts[i]);
            renderStrokes(strokes, parts[i]);
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

void ScreenPicture::renderStrokes(const StrokesInSight& strokes, const PixelBuffer& part) const {
    BitmapContext context(part, DeviceFrame::yDown(contents_.scale));
    strokes.draw(context, drawOnScreen);
}

}  // namespace marlevo
