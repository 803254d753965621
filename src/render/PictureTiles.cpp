#include "render/PictureTiles.h"

#include "render/StrokePainting.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace marlevo {

namespace {

CellMask bitOf(int cell) { return CellMask{1} << cell; }

void copyPixels(const PixelBuffer& from, const PixelBuffer& to, const IntRect& area) {
    const std::size_t rowBytes = static_cast<std::size_t>(area.width()) * 4;
    for (int y = area.top; y < area.bottom; ++y)
        std::memcpy(to.pixel(area.left, y), from.pixel(area.left, y), rowBytes);
}

}  // namespace

CellSet PictureTiles::noCells() const {
    CellSet cells;
    tiles_.forEachKnownTile(
        [&](const Tile& tile) { cells.allow(tile.area, cellsTouching(tile.area, canvas_)); });
    return cells;
}

void PictureTiles::invalidate(const PictureDifference& difference) noexcept {
    tiles_.forEachKnownTile([&](Tile& tile) {
        const CellMask cells = difference.cellsIn(tile.area);
        tile.former = cells & ~tile.stale;
        tile.stale |= cells;
    });
}

ShownPicturePtr PictureTiles::restore(const Change& change) {
    CellSearch search(change.after, scale_, change.difference.damage);
    tiles_.forEachKnownTile([&](Tile& tile) {
        std::vector<Overlay> overlays{{&change.difference, 0}};
        forEachCell(change.difference.cellsIn(tile.area),
                    [&](int cell) { restoreCell(tile, cell, change, search, overlays); });
        for (const Overlay& overlay : overlays) {
            drawStrokes(tile, overlay, change);
            tile.stale &= ~overlay.cells;
        }
    });
    return search.samePicture();
}

void PictureTiles::restoreCell(Tile& tile, int cell, const Change& change, CellSearch& search,
                               std::vector<Overlay>& overlays) {
    const KeptCells::Versions& versions = tile.kept.of(cell);
    if (const auto version = search.findSame(versions)) {
        ++change.counts.samePicture;
        return restoreSame(tile, cell, *version, change);
    }
    const bool isDamage = (change.difference.damage.in(tile.area) & bitOf(cell)) != 0;
    if (!isDamage && (tile.former & bitOf(cell)) != 0) {
        ++change.counts.drawnOver;
        keepFormer(tile, cell, change);
        overlays.front().cells |= bitOf(cell);
        return;
    }
    const auto similar = search.findSimilar(versions, tile.area, bitOf(cell));
    keepFormer(tile, cell, change);
    if (!similar) {
        ++change.counts.repainted;
        return;
    }
    copyKept(tile, cell, similar->version);
    if (!similar->needsStrokes) {
        ++change.counts.sameInCell;
        tile.stale &= ~bitOf(cell);
        return;
    }
    ++change.counts.drawnOverKept;
    auto overlay = std::ranges::find(overlays, similar->difference, &Overlay::difference);
    if (overlay == overlays.end()) overlay = overlays.insert(overlay, {similar->difference, 0});
    overlay->cells |= bitOf(cell);
}

/// Where the replaced pixels are to be kept, the two change places.
void PictureTiles::restoreSame(Tile& tile, int cell, std::size_t version, const Change& change) {
    KeptCells::Versions& versions = tile.kept.of(cell);
    const bool isKnown =
        std::ranges::find(versions, change.before, &KeptCell::picture) != versions.end();
    if (canKeep(tile, cell, change) && !change.isPassing && !isKnown) {
        KeptCell& kept = versions[version];
        kept.pixels.swapWith(pixelsOf(tile, cell));
        kept.picture = change.before;
        kept.usedAt = ++uses_;
    } else {
        keepFormer(tile, cell, change);
        copyKept(tile, cell, version);
    }
    tile.stale &= ~bitOf(cell);
}

bool PictureTiles::canKeep(const Tile& tile, int cell, const Change& change) const {
    return change.before && (tile.former & ~change.unlikeBefore.in(tile.area) & bitOf(cell)) != 0;
}

void PictureTiles::keepFormer(Tile& tile, int cell, const Change& change) {
    if (canKeep(tile, cell, change))
        tile.kept.keep(cell, change.before, pixelsOf(tile, cell), ++uses_);
}

void PictureTiles::copyKept(Tile& tile, int cell, std::size_t version) {
    KeptCell& kept = tile.kept.of(cell)[version];
    kept.pixels.copyTo(pixelsOf(tile, cell));
    kept.usedAt = ++uses_;
}

void PictureTiles::drawStrokes(Tile& tile, const Overlay& overlay, const Change& change) const {
    const auto draw = [&](const IntRect& area) {
        const PixelBuffer part = tile.pixels().part(area.intersectedWith(canvas_));
        if (overlay.difference == &change.difference) return change.drawOver(part);
        drawStrokesOnScreen(part, overlay.difference->drawnOver, scale_);
    };
    if (overlay.cells == 0) return;
    if (overlay.difference->drawnOverCells.in(tile.area) & ~overlay.cells)
        return forEachRectangle(tile.area, overlay.cells, draw);
    // No other cell is touched: in one piece each stroke is prepared once.
    IntRect whole;
    forEachRectangle(tile.area, overlay.cells,
                     [&](const IntRect& area) { whole = whole.unitedWith(area); });
    draw(whole);
}

void PictureTiles::paintMissing(const IntRect& area, const PaintParts& paint) {
    const IntRect asked = area.intersectedWith(canvas_);
    std::vector<TileCells> stale;
    tiles_.forEachTile(asked, [&](Tile& tile) {
        stale.emplace_back(&tile, tile.stale & cellsTouching(tile.area, asked));
    });
    paintCells(stale, paint);
}

void PictureTiles::paintLost(const PaintParts& paint) {
    std::vector<TileCells> stale;
    tiles_.forEachKnownTile(
        [&](Tile& tile) { stale.emplace_back(&tile, tile.stale & tile.former); });
    paintCells(stale, paint);
}

void PictureTiles::paintCells(const std::vector<TileCells>& stale, const PaintParts& paint) const {
    std::vector<PixelBuffer> parts;
    IntRect whole;
    for (const auto& [tile, cells] : stale) {
        const PixelBuffer pixels = tile->pixels();
        forEachRectangle(tile->area, cells, [&](const IntRect& rectangle) {
            parts.push_back(pixels.part(rectangle.intersectedWith(canvas_)));
            whole = whole.unitedWith(parts.back().area);
        });
    }
    if (parts.empty()) return;
    paint(parts, whole);
    // Only now: after an exception the cells are still stale and painted again.
    for (const auto& [tile, cells] : stale)
        tile->stale &= ~cells;
}

void PictureTiles::copyTo(const PixelBuffer& target) const {
    tiles_.forEachKnownTile(target.area, [&](const Tile& tile) {
        copyPixels(tile.pixels(), target, tile.area.intersectedWith(target.area));
    });
}

void PictureTiles::addDamage(const PictureDifference& difference) {
    tiles_.forEachKnownTile([&](Tile& tile) { tile.damage |= difference.cellsIn(tile.area); });
}

void PictureTiles::takeDamage(std::vector<IntRect>& damage) {
    tiles_.forEachKnownTile([&](Tile& tile) {
        forEachRectangle(tile.area, std::exchange(tile.damage, 0), [&](const IntRect& area) {
            damage.push_back(area.intersectedWith(canvas_));
        });
    });
}

template <typename Visit>
void PictureTiles::forEachKept(Visit visit) const {
    tiles_.forEachKnownTile([&](const Tile& tile) { tile.kept.forEach(visit); });
}

std::size_t PictureTiles::keptBytes() const {
    std::size_t bytes = 0;
    forEachKept([&](const KeptCell& kept) { bytes += kept.bytes(); });
    return bytes;
}

void PictureTiles::limitKept(std::size_t mostBytes) {
    if (keptBytes() <= mostBytes) return;
    tiles_.forEachKnownTile([](Tile& tile) { tile.kept.thin(); });
    // Some room is left, so that only few changes get here.
    const std::size_t wanted = mostBytes - mostBytes / 8;
    std::vector<std::pair<std::uint64_t, std::size_t>> uses;
    forEachKept([&](const KeptCell& kept) { uses.emplace_back(kept.usedAt, kept.bytes()); });
    std::ranges::sort(uses, std::greater());
    std::size_t bytes = 0;
    for (const auto& [usedAt, size] : uses) {
        bytes += size;
        if (bytes <= wanted) continue;
        tiles_.forEachKnownTile([end = usedAt + 1](Tile& tile) { tile.kept.dropUsedBefore(end); });
        return;
    }
}

PixelBuffer PictureTiles::pixelsOf(const Tile& tile, int cell) const {
    return tile.pixels().part(cellArea(tile.area, cell).intersectedWith(canvas_));
}

}  // namespace marlevo
