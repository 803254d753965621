#include "render/ScreenPicture.h"

#include "graphics/BitmapContext.h"
#include "model/ImageCache.h"
#include "platform/ParallelFor.h"
#include "render/DeviceBounds.h"
#include "render/Grid.h"
#include "render/LayerRun.h"
#include "render/PictureDifference.h"
#include "render/StrokePainting.h"
#include "render/VisibleStrokes.h"

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

/// The rectangle `all` without `end`, which shares three of its edges.
IntRect without(const IntRect& end, const IntRect& all) {
    if (end.bottom < all.bottom) return {all.left, end.bottom, all.right, all.bottom};
    if (end.top > all.top) return {all.left, all.top, all.right, end.top};
    if (end.right < all.right) return {end.right, all.top, all.right, all.bottom};
    return {all.left, all.top, end.left, all.bottom};
}

/// Removes from `stale` the part inside `asked`, a margin around it, and as much more as is needed
/// to leave a rectangle.
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

/// Fewer pixels and strokes are painted in less time than another thread needs to wake up.
constexpr int leastPixelsToShare = 1 << 14;
constexpr std::size_t leastStrokesToShare = 64;

/// Cuts an area across its longer side into at most `count` pieces of at least `slimmest` pixels.
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

/// Cuts large areas into one piece for each core. Not into more, because a stroke in two pieces is
/// prepared twice.
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

void ScreenPicture::setGridColor(const Color& color) {
    if (color == gridColor_) return;
    gridColor_ = color;
    releaseMemory();
}

void ScreenPicture::update(const Scene& scene) {
    if (!hasSameGround(scene) || !canBeShown(scene.scale) || !canBeShown(shown_.scale)) {
        releaseMemory();
        strokeInProgress_.update(scene.strokeInProgress, scene.scale);
    } else {
        applyDifference(scene.picture.layers, scene.strokeInProgress);
        if (scene.scale != shown_.scale) {
            changeScale(scene.scale);
            strokeInProgress_.update(scene.strokeInProgress, scene.scale);
        }
    }
    images_.retainOnly(scene.picture.layers);
    shown_ = scene;
    shown_.strokeInProgress = nullptr;
}

std::optional<std::vector<IntRect>> ScreenPicture::takeDamage() {
    std::vector<IntRect> damage;
    tiles_.forEachKnownTile([&](Tile& tile) {
        const IntRect part = std::exchange(tile.damage, {});
        if (!part.isEmpty()) damage.push_back(part);
    });
    if (std::exchange(isAllDamaged_, false)) return std::nullopt;
    return damage;
}

void ScreenPicture::paint(const PixelBuffer& target) {
    prepare(target.area);
    if (!canBeShown(shown_.scale) || target.area.isEmpty()) return;
    const IntRect seen = target.area.intersectedWith(canvasPixels());
    if (seen != target.area) clearPixels(target);
    if (seen.isEmpty()) return;
    tiles_.forEachKnownTile(seen, [&](Tile& tile) {
        copyPixels(tile.pixels(), target, tile.area.intersectedWith(seen));
    });
    strokeInProgress_.paint(target.part(seen));
}

void ScreenPicture::prepare(const IntRect& area) {
    if (canBeShown(shown_.scale)) renderStaleTiles(area.intersectedWith(canvasPixels()));
}

std::size_t ScreenPicture::cachedBytes() const {
    std::size_t tiles = tiles_.size();
    for (const OtherScale& other : otherScales_)
        tiles += other.tiles.size();
    return tiles * tileBytes;
}

void ScreenPicture::evictTiles(const IntRect& visible) {
    while (hasTilesToEvict() && !otherScales_.empty())
        otherScales_.erase(otherScales_.begin());
    if (hasTilesToEvict()) tiles_.dropTilesOutside(visible);
}

void ScreenPicture::releaseMemory() {
    tiles_.clear();
    otherScales_.clear();
    isAllDamaged_ = true;
}

IntRect ScreenPicture::canvasPixels() const {
    // All of a pixel that contains an edge may be painted.
    constexpr double farthest = 1 << 30;
    const auto edge = [farthest](double device) {
        return device > 0 ? static_cast<int>(std::ceil(std::min(device, farthest))) : 0;
    };
    const CanvasSize& canvas = shown_.picture.canvasSize;
    return {0, 0, edge(canvas.width * shown_.scale), edge(canvas.height * shown_.scale)};
}

Rect ScreenPicture::canvasRect() const {
    return {{0, 0}, {shown_.picture.canvasSize.width, shown_.picture.canvasSize.height}};
}

/// The ground is what is below the layers, and its edges.
bool ScreenPicture::hasSameGround(const Scene& next) const {
    return next.picture.background == shown_.picture.background &&
           next.picture.canvasSize == shown_.picture.canvasSize &&
           next.showsGrid == shown_.showsGrid;
}

void ScreenPicture::changeScale(double scale) {
    if (tiles_.size() > 0) otherScales_.push_back({shown_.scale, std::exchange(tiles_, {})});
    const auto known = std::ranges::find(otherScales_, scale, &OtherScale::scale);
    if (known != otherScales_.end()) {
        tiles_ = std::move(known->tiles);
        otherScales_.erase(known);
    }
    isAllDamaged_ = true;
}

void ScreenPicture::applyDifference(const LayerList& after, const Stroke* strokeInProgress) {
    const double scale = shown_.scale;
    const auto difference = PictureDifference::between(shown_.picture.layers, after, scale);
    if (!difference.isEmpty()) otherScales_.clear();
    // A stroke that has just been added to its layer looks as it did in progress.
    const bool isJoining = !strokeInProgress && difference.damage.empty() &&
                           difference.drawnOver.size() == 1 &&
                           strokeInProgress_.looksLike(*difference.drawnOver.front());
    for (const IntRect& area : difference.damage) {
        invalidate(area);
        addDamage(area);
    }
    for (const Stroke* stroke : difference.drawnOver) {
        const IntRect area = deviceBounds(*stroke, scale);
        paintOver(area, [&](const PixelBuffer& part) {
            if (isJoining) return strokeInProgress_.paint(part);
            BitmapContext context(part, DeviceFrame::yDown(scale));
            drawStrokeOnScreen(context, *stroke);
        });
        if (!isJoining) addDamage(area);
    }
    const IntRect area = strokeInProgress_.update(strokeInProgress, scale);
    if (!isJoining) addDamage(area);
}

void ScreenPicture::invalidate(const IntRect& area) {
    tiles_.forEachKnownTile(area, [&](Tile& tile) {
        tile.stale = tile.stale.unitedWith(area.intersectedWith(tile.area));
    });
}

void ScreenPicture::addDamage(const IntRect& area) {
    tiles_.forEachKnownTile(area, [&](Tile& tile) {
        tile.damage = tile.damage.unitedWith(area.intersectedWith(tile.area));
    });
}

template <typename Paint>
void ScreenPicture::paintOver(const IntRect& area, Paint paint) {
    tiles_.forEachKnownTile(
        area, [&](Tile& tile) { paint(tile.pixels().part(area.intersectedWith(tile.area))); });
}

void ScreenPicture::renderStaleTiles(const IntRect& area) {
    struct Rest {
        Tile& tile;
        IntRect stale;
    };
    std::vector<PixelBuffer> parts;
    std::vector<Rest> rests;
    IntRect whole;
    tiles_.forEachTile(area, [&](Tile& tile) {
        if (tile.stale.intersectedWith(area).isEmpty()) return;
        IntRect stale = tile.stale.intersectedWith(canvasPixels());
        const IntRect part = takeAround(area, stale);
        parts.push_back(tile.pixels().part(part));
        rests.push_back({tile, stale});
        whole = whole.unitedWith(part);
    });
    if (parts.empty()) return;
    render(parts, whole);
    // Only now: after an exception the parts are still stale and painted again.
    for (const Rest& rest : rests)
        rest.tile.stale = rest.stale;
}

void ScreenPicture::render(const std::vector<PixelBuffer>& stale, const IntRect& whole) const {
    images_.decodeAhead(shown_.picture.layers);
    parallelFor(stale.size(), [&](std::size_t i) { renderBackground(stale[i]); });
    const auto decode = [&](const Bytes& file) { return images_.image(file); };
    forEachRun(shown_.picture.layers, decode, [&](const LayerRun& run) {
        const VisibleStrokes strokes(run, whole, shown_.scale);
        const auto parts = cutForAllCores(stale, strokes.count());
        parallelFor(parts.size(), [&](std::size_t i) {
            if (run.image) renderImage(run, parts[i]);
            renderStrokes(strokes, parts[i]);
        });
    });
}

void ScreenPicture::renderBackground(const PixelBuffer& part) const {
    clearPixels(part);
    BitmapContext context(part, DeviceFrame::yDown(shown_.scale));
    context.fillRect(canvasRect(), shown_.picture.background);
    if (shown_.showsGrid) {
        context.fillPath(gridPath(shown_.picture.canvasSize, onCanvas(part.area, shown_.scale)),
                         gridColor_);
    }
}

void ScreenPicture::renderImage(const LayerRun& run, const PixelBuffer& part) const {
    BitmapContext context(part, DeviceFrame::yDown(shown_.scale));
    context.setAlpha(run.layers.front()->opacity);
    context.drawImage(*run.image, canvasRect());
}

void ScreenPicture::renderStrokes(const VisibleStrokes& strokes, const PixelBuffer& part) const {
    BitmapContext context(part, DeviceFrame::yDown(shown_.scale));
    strokes.draw(context, drawStrokeOnScreen);
}

}  // namespace marlevo
