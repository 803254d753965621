#include "render/ScenePainting.h"

#include "graphics/BitmapContext.h"
#include "model/ImageCache.h"
#include "platform/ParallelFor.h"
#include "render/DeviceBounds.h"
#include "render/Grid.h"
#include "render/LayerRun.h"
#include "render/StrokePainting.h"
#include "render/VisibleStrokes.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <thread>

namespace marlevo {

namespace {

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

void clearPixels(const PixelBuffer& part) {
    for (int y = part.area.top; y < part.area.bottom; ++y)
        std::memset(part.pixel(part.area.left, y), 0,
                    static_cast<std::size_t>(part.area.width()) * 4);
}

Rect canvasRect(const Scene& scene) {
    return {{0, 0}, {scene.picture.canvasSize.width, scene.picture.canvasSize.height}};
}

void paintBackground(const Scene& scene, const Color& gridColor, const PixelBuffer& part) {
    clearPixels(part);
    BitmapContext context(part, DeviceFrame::yDown(scene.scale));
    context.fillRect(canvasRect(scene), scene.picture.background);
    if (!scene.showsGrid) return;
    const Rect visible = onCanvas(part.area, scene.scale);
    context.fillPath(gridPath(scene.picture.canvasSize, visible), gridColor);
}

}  // namespace

void paintScene(const Scene& scene, const Color& gridColor, ImageCache& images,
                const std::vector<PixelBuffer>& parts, const IntRect& whole) {
    images.decodeAhead(scene.picture.layers);
    parallelFor(parts.size(), [&](std::size_t i) { paintBackground(scene, gridColor, parts[i]); });
    const auto decode = [&](const Bytes& file) { return images.image(file); };
    forEachRun(scene.picture.layers, decode, [&](const LayerRun& run) {
        const VisibleStrokes strokes(run, whole, scene.scale);
        const auto pieces = cutForAllCores(parts, strokes.count());
        parallelFor(pieces.size(), [&](std::size_t i) {
            BitmapContext context(pieces[i], DeviceFrame::yDown(scene.scale));
            if (run.image) {
                context.setAlpha(run.layers.front()->opacity);
                context.drawImage(*run.image, canvasRect(scene));
                context.setAlpha(1);
            }
            strokes.draw(context, drawStrokeOnScreen);
        });
    });
}

}  // namespace marlevo
