#include "render/ScreenPicture.h"

#include "model/DecodedImages.h"
#include "model/StrokeDifference.h"
#include "render/Grid.h"
#include "render/PaintedArea.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace marlevo {

namespace {

constexpr int tileSide = 256;
constexpr std::size_t tileBytes = std::size_t{tileSide} * tileSide * 4;

int floorDivide(int value, int by) { return value >= 0 ? value / by : -1 - (-1 - value) / by; }

/// Calls `visit` with the column and row of each tile that the area touches.
template <typename Visit>
void forEachTile(const IntRect& area, Visit visit) {
    for (int row = floorDivide(area.top, tileSide); row * tileSide < area.bottom; ++row) {
        for (int column = floorDivide(area.left, tileSide); column * tileSide < area.right;
             ++column) {
            visit(column, row);
        }
    }
}

std::uint64_t tileKey(int column, int row) {
    return std::uint64_t{static_cast<std::uint32_t>(row)} << 32 |
           static_cast<std::uint32_t>(column);
}

IntRect tileArea(std::uint64_t key) {
    const int left = static_cast<int>(static_cast<std::uint32_t>(key)) * tileSide;
    const int top = static_cast<int>(static_cast<std::uint32_t>(key >> 32)) * tileSide;
    return {left, top, left + tileSide, top + tileSide};
}

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

/// Draws as the screen does: the path as Stroke gives it, at the stroke's own opacity.
void drawOnScreen(GraphicsContext& context, const Stroke& stroke) {
    context.setAlpha(stroke.opacity);
    if (stroke.isFill) {
        context.fillPath(stroke.path(), stroke.color);
    } else {
        context.strokePath(stroke.path(), stroke.color, stroke.lineWidth);
    }
    context.setAlpha(1);
}

IntRect paintedArea(const Stroke& stroke, double scale) {
    return marlevo::paintedArea(stroke.boundingRect(), stroke.lineWidth, scale);
}

constexpr IntRect everything{-(1 << 30), -(1 << 30), 1 << 30, 1 << 30};

/// What must be repainted when `before` becomes `after` in the same place of the stack.
template <typename Damage>
void forEachDamage(const Layer& before, const Layer& after, double scale, Damage damage) {
    if (&before == &after) return;  // both lists share the layer
    const bool sameImage = before.imageData.has_value() == after.imageData.has_value() &&
                           (!before.imageData || before.imageData->sharesWith(*after.imageData));
    const bool hasImage = before.imageData || after.imageData;
    if (before.isVisible != after.isVisible || !sameImage ||
        (hasImage && before.opacity != after.opacity)) {
        // An image covers the whole canvas; without one only the strokes come or go.
        if (hasImage) return damage(everything);
        for (const Layer* layer : {&before, &after}) {
            for (const Stroke& stroke : layer->strokes)
                damage(paintedArea(stroke, scale));
        }
        return;
    }
    if (!after.isVisible) return;
    const auto difference = StrokeDifference::between(before.strokes, after.strokes);
    for (const Stroke* stroke : difference.went)
        damage(paintedArea(*stroke, scale));
    for (const Stroke* stroke : difference.came)
        damage(paintedArea(*stroke, scale));
}

/// The same for two stacks of layers.
template <typename Damage>
void forEachDamage(const LayerList& before, const LayerList& after, double scale, Damage damage) {
    const auto sameLayer = [](const Layer& a, const Layer& b) { return a.id == b.id; };
    // Layers that came, went or changed places lie between the equal ends of the two stacks.
    const auto head =
        std::mismatch(before.begin(), before.end(), after.begin(), after.end(), sameLayer).first -
        before.begin();
    const auto tail = std::mismatch(before.rbegin(), before.rend() - head, after.rbegin(),
                                    after.rend() - head, sameLayer)
                          .first -
                      before.rbegin();
    const auto firstOfTail = std::ssize(before) - tail;
    const auto newFirstOfTail = std::ssize(after) - tail;
    const Layer none("");

    for (std::ptrdiff_t i = 0; i < head; ++i)
        forEachDamage(before[i], after[i], scale, damage);
    for (std::ptrdiff_t i = head; i < firstOfTail; ++i)
        forEachDamage(before[i], none, scale, damage);
    for (std::ptrdiff_t i = head; i < newFirstOfTail; ++i)
        forEachDamage(none, after[i], scale, damage);
    for (std::ptrdiff_t i = 0; i < tail; ++i)
        forEachDamage(before[firstOfTail + i], after[newFirstOfTail + i], scale, damage);
}

}  // namespace

ScreenPicture::Contents ScreenPicture::Contents::of(const DrawingDocument& document, double scale,
                                                    PixelOrder order) {
    return {
        document.layers,     document.backgroundIsTransparent ? clear : *document.backgroundColor,
        document.canvasSize, scale,
        document.showGrid,   order};
}

void ScreenPicture::paint(const DrawingDocument& document, double scale,
                          const PixelBuffer& target) {
    if (!(scale > 0) || !std::isfinite(scale) || target.area.isEmpty()) return;
    update(Contents::of(document, scale, target.order));
    document.decodedImages().keepOnly(contents_.layers);
    forEachTile(target.area, [&](int column, int row) {
        const std::uint64_t key = tileKey(column, row);
        const IntRect area = tileArea(key);
        const auto [place, isNew] = tiles_.try_emplace(key);
        Tile& tile = place->second;
        if (isNew) {
            tile.pixels.resize(tileBytes);
            tile.stale = area;
        }
        const PixelBuffer pixels{tile.pixels.data(), std::ptrdiff_t{tileSide} * 4, area,
                                 target.order};
        if (!tile.stale.isEmpty()) render(document, partOf(pixels, tile.stale));
        tile.stale = {};
        copyPixels(pixels, target, area.intersectedWith(target.area));
    });
    if (tiles_.size() * tileBytes > maxCachedBytes) dropTilesOutside(target.area);

    const std::optional<Stroke>& stroke = document.currentStroke;
    if (stroke && stroke->points.size() >= 2) {
        BitmapContext context(target, DeviceFrame::yDown(scale));
        drawOnScreen(context, *stroke);
    }
}

void ScreenPicture::update(Contents next) {
    const bool sameView = next.background == contents_.background &&
                          next.canvasSize == contents_.canvasSize &&
                          next.scale == contents_.scale && next.hasGrid == contents_.hasGrid &&
                          next.order == contents_.order;
    if (!sameView) {
        tiles_.clear();
    } else {
        forEachDamage(contents_.layers, next.layers, next.scale,
                      [this](const IntRect& area) { invalidate(area); });
    }
    contents_ = std::move(next);
}

void ScreenPicture::invalidate(const IntRect& area) {
    for (auto& [key, tile] : tiles_) {
        tile.stale = tile.stale.unitedWith(area.intersectedWith(tileArea(key)));
    }
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
                if (stroke.points.size() >= 2) drawOnScreen(context, stroke);
                return true;
            });
    }
}

void ScreenPicture::dropTilesOutside(const IntRect& area) {
    std::erase_if(tiles_, [&](const auto& entry) {
        return tileArea(entry.first).intersectedWith(area).isEmpty();
    });
}

}  // namespace marlevo
