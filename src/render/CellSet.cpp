#include "render/CellSet.h"

#include <bit>

namespace marlevo {

void CellSet::allow(const IntRect& tile, CellMask cells) {
    if (cells == 0) return;
    parts_.forEachTile(tile, [&](Part& part) {
        missing_ += static_cast<std::size_t>(std::popcount(cells & ~part.allowed));
        part.allowed |= cells;
    });
    forEachRectangle(tile, cells,
                     [&](const IntRect& area) { allowedArea_ = allowedArea_.unitedWith(area); });
}

CellSet CellSet::emptied() const {
    CellSet set = *this;
    set.missing_ = 0;
    set.parts_.forEachKnownTile([&](Part& part) {
        part.cells = 0;
        set.missing_ += static_cast<std::size_t>(std::popcount(part.allowed));
    });
    return set;
}

void CellSet::add(const IntRect& area) {
    parts_.forEachKnownTile(area.intersectedWith(allowedArea_), [&](Part& part) {
        const CellMask added = cellsTouching(part.area, area) & part.allowed & ~part.cells;
        part.cells |= added;
        missing_ -= static_cast<std::size_t>(std::popcount(added));
    });
}

void CellSet::add(const CellSet& other) {
    parts_.forEachKnownTile([&](Part& part) {
        const CellMask added = other.in(part.area) & part.allowed & ~part.cells;
        part.cells |= added;
        missing_ -= static_cast<std::size_t>(std::popcount(added));
    });
}

bool CellSet::covers(const IntRect& area) const {
    bool isCovered = true;
    parts_.forEachKnownTile(area.intersectedWith(allowedArea_), [&](const Part& part) {
        if (cellsTouching(part.area, area) & part.allowed & ~part.cells) isCovered = false;
    });
    return isCovered;
}

CellMask CellSet::in(const IntRect& tile) const {
    CellMask cells = 0;
    parts_.forEachKnownTile(tile, [&](const Part& part) { cells = part.cells; });
    return cells;
}

}  // namespace marlevo
