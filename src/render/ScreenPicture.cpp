#include "render/ScreenPicture.h"

#include "model/ImageCache.h"
#include "render/DraggedStroke.h"
#include "render/ScenePainting.h"
#include "render/StrokePainting.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace marlevo {

namespace {

void clearPixels(const PixelBuffer& part) {
    for (int y = part.area.top; y < part.area.bottom; ++y) {
        std::memset(part.pixel(part.area.left, y), 0,
                    static_cast<std::size_t>(part.area.width()) * 4);
    }
}

bool canBeShown(double scale) { return scale > 0 && std::isfinite(scale); }

IntRect canvasPixels(const Scene& scene) {
    // All of a pixel that contains an edge may be painted.
    constexpr double farthest = 1 << 30;
    const auto edge = [farthest](double device) {
        return device > 0 ? static_cast<int>(std::ceil(std::min(device, farthest))) : 0;
    };
    const CanvasSize& canvas = scene.picture.canvasSize;
    return {0, 0, edge(canvas.width * scene.scale), edge(canvas.height * scene.scale)};
}

PictureTiles emptyTiles(const Scene& scene) {
    return {scene.scale, canBeShown(scene.scale) ? canvasPixels(scene) : IntRect{}};
}

/// False if the drawing was replaced by another one.
bool haveCommonLayer(const LayerList& a, const LayerList& b) {
    return std::ranges::any_of(a, [&](const Layer& layer) {
        return std::ranges::find(b, layer.id, &Layer::id) != b.end();
    });
}

}  // namespace

void ScreenPicture::setGridColor(const Color& color) {
    if (color == gridColor_) return;
    gridColor_ = color;
    releaseMemory();
}

void ScreenPicture::update(const Scene& scene) {
    Scene next = scene;
    next.strokeInProgress = nullptr;
    const View before(shown_);
    const View after(next);
    const LayerList& layers = shown_.picture.layers;
    const bool isSamePicture = showTheSame(layers, next.picture.layers);
    const bool canContinue =
        after.hasGroundOf(before) && haveCommonLayer(layers, next.picture.layers);
    const bool isNew =
        !canBeShown(before.scale) || !canBeShown(after.scale) || !(isSamePicture || canContinue);
    // Until the end, because an exception may leave changes that are not in the damage.
    const bool wasAllDamaged = std::exchange(isAllDamaged_, true);
    bool isJoined = false;
    if (isNew) {
        tiles_ = emptyTiles(next);
        otherViews_.clear();
    } else {
        if (!isSamePicture) {
            if (next.isPassing && showTheSame(lasting_->layers, layers)) startDrag(next);
            isJoined = changeLayers(next, scene.strokeInProgress);
        }
        if (after != before) changeView(next);
    }
    shown_ = std::move(next);
    if (!shown_.isPassing && !showTheSame(lasting_->layers, layers))
        lasting_ = std::make_shared<ShownPicture>(ShownPicture{layers});
    const IntRect ofStroke = strokeInProgress_.update(scene.strokeInProgress, scene.scale);
    if (!isJoined) strokeDamage_ = strokeDamage_.unitedWith(ofStroke);
    images_.retainOnly(layers);
    isAllDamaged_ = wasAllDamaged || isNew || after != before;
}

/// Shows the picture without the dragged stroke, if that is the topmost one. Its pixels are kept,
/// so that the drag costs no more than drawing the stroke.
void ScreenPicture::startDrag(const Scene& next) {
    const auto layers = withoutReplacedTopStroke(shown_.picture.layers, next.picture.layers);
    if (!layers) return;
    Scene without = shown_;
    without.picture.layers = *layers;
    changeLayers(without, nullptr);
    lasting_ = std::make_shared<ShownPicture>(ShownPicture{*layers});
    tiles_.paintLost(scenePainting());
}

/// Returns true if the change only adds the stroke in progress to its layer, which looks the same.
bool ScreenPicture::changeLayers(const Scene& next, const Stroke* strokeInProgress) {
    const LayerList& after = next.picture.layers;
    const CellSet none = tiles_.noCells();
    const auto difference =
        *PictureDifference::between(shown_.picture.layers, after, shown_.scale, none);
    const CellSet unlikeLasting = cellsUnlikeLasting(none);
    const bool isJoining = !strokeInProgress && difference.drawnOver.size() == 1 &&
                           difference.isOnlyDrawnOver &&
                           strokeInProgress_.looksLike(*difference.drawnOver.front());
    const auto drawOver = [&](const PixelBuffer& part) {
        if (isJoining) return strokeInProgress_.paint(part);
        drawStrokesOnScreen(part, difference.drawnOver, shown_.scale);
    };
    LayerList layers = after;

    // From here on the tiles have the pixels of the next picture, or none.
    if (!difference.isEmpty) otherViews_.clear();
    tiles_.invalidate(difference);
    if (!isJoining) tiles_.addDamage(difference);
    shown_.picture.layers = std::move(layers);

    const ShownPicturePtr same = tiles_.restore(
        {after, difference, lasting_, unlikeLasting, next.isPassing, drawOver, counts_});
    if (same && !next.isPassing) lasting_ = same;
    tiles_.limitKept(limits_.keptBytes);
    return isJoining;
}

/// The cells in which the picture shown differs from the last one that is not passing.
CellSet ScreenPicture::cellsUnlikeLasting(const CellSet& none) const {
    constexpr std::size_t most = 64;
    const LayerList& layers = shown_.picture.layers;
    if (showTheSame(lasting_->layers, layers)) return none;
    CellSet cells = none;
    const auto difference =
        PictureDifference::between(lasting_->layers, layers, shown_.scale, none, most);
    if (!difference) {
        cells.add(none.allowedArea());
        return cells;
    }
    cells.add(difference->damage);
    cells.add(difference->drawnOverCells);
    return cells;
}

void ScreenPicture::changeView(const Scene& next) {
    const View from(shown_);
    const View to(next);
    // Of other grounds only the last one stays: a colour that is dragged passes many.
    std::erase_if(otherViews_, [&](const OtherView& other) {
        return !other.view.hasGroundOf(from) && !other.view.hasGroundOf(to);
    });
    otherViews_.reserve(otherViews_.size() + 1);
    PictureTiles tiles = emptyTiles(next);
    const auto known = std::ranges::find(otherViews_, to, &OtherView::view);
    if (known != otherViews_.end()) {
        tiles = std::move(known->tiles);
        otherViews_.erase(known);
    }
    if (tiles_.tileBytes() > 0) otherViews_.push_back({from, std::move(tiles_)});
    tiles_ = std::move(tiles);
}

std::optional<std::vector<IntRect>> ScreenPicture::takeDamage() {
    std::vector<IntRect> damage;
    tiles_.takeDamage(damage);
    const IntRect ofStroke = std::exchange(strokeDamage_, {});
    if (!ofStroke.isEmpty()) damage.push_back(ofStroke);
    if (std::exchange(isAllDamaged_, false)) return std::nullopt;
    return damage;
}

void ScreenPicture::paint(const PixelBuffer& target) {
    prepare(target.area);
    if (!canBeShown(shown_.scale) || target.area.isEmpty()) return;
    const IntRect seen = target.area.intersectedWith(canvasPixels(shown_));
    if (seen != target.area) clearPixels(target);
    if (seen.isEmpty()) return;
    tiles_.copyTo(target.part(seen));
    strokeInProgress_.paint(target.part(seen));
}

void ScreenPicture::prepare(const IntRect& area) { tiles_.paintMissing(area, scenePainting()); }

PictureTiles::PaintParts ScreenPicture::scenePainting() {
    return [this](const std::vector<PixelBuffer>& parts, const IntRect& whole) {
        paintScene(shown_, gridColor_, images_, parts, whole);
    };
}

std::size_t ScreenPicture::tileBytes() const {
    std::size_t bytes = tiles_.tileBytes();
    for (const OtherView& other : otherViews_)
        bytes += other.tiles.tileBytes();
    return bytes;
}

std::size_t ScreenPicture::keptBytes() const {
    std::size_t bytes = tiles_.keptBytes();
    for (const OtherView& other : otherViews_)
        bytes += other.tiles.keptBytes();
    return bytes;
}

void ScreenPicture::evictTiles(const IntRect& visible) {
    while (hasTilesToEvict() && !otherViews_.empty())
        otherViews_.erase(otherViews_.begin());
    if (hasTilesToEvict()) tiles_.dropTilesOutside(visible);
}

void ScreenPicture::releaseMemory() {
    tiles_ = emptyTiles(shown_);
    otherViews_.clear();
    isAllDamaged_ = true;
}

}  // namespace marlevo
