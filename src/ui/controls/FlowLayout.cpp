#include "ui/controls/FlowLayout.h"

#include "ui/controls/DistributeWidth.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <functional>
#include <iterator>
#include <numeric>

namespace marlevo {

namespace {

/// The number of items in each line, if each line takes as many as have room.
std::vector<int> filledLines(const std::vector<int>& widths, int spacing, int room) {
    std::vector<int> counts;
    int used = 0;
    for (const int width : widths) {
        used += spacing + width;
        if (counts.empty() || used > room) {
            counts.push_back(0);
            used = width;
        }
        ++counts.back();
    }
    return counts;
}

/// As many lines, but of numbers as equal as possible.
std::vector<int> balancedLines(const std::vector<int>& widths, int spacing, int room) {
    std::vector<int> best = filledLines(widths, spacing, room);
    if (best.size() <= 1 || best.size() == widths.size()) return best;
    while (--room > 0) {
        std::vector<int> lines = filledLines(widths, spacing, room);
        if (lines.size() > best.size()) break;
        if (std::ranges::is_sorted(lines, std::greater())) best = std::move(lines);
    }
    return best;
}

std::vector<int> widthsOf(const std::vector<QLayoutItem*>& items,
                          QSize (QLayoutItem::*size)() const) {
    std::vector<int> widths;
    for (const QLayoutItem* const item : items)
        widths.push_back((item->*size)().width());
    return widths;
}

int heightOf(const QLayoutItem& item, int width) {
    return item.hasHeightForWidth() ? item.heightForWidth(width) : item.sizeHint().height();
}

}  // namespace

FlowLayout::FlowLayout(Fill fill, int spacing, QWidget* parent)
    : QLayout(parent), fill_(fill), leastSpacing_(spacing) {
    setContentsMargins(0, 0, 0, 0);
    setSpacing(spacing);
    if (parent != nullptr) parent->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

FlowLayout::~FlowLayout() {
    // A layout that is deleted removes itself from the layout around it, by takeAt().
    while (!items_.empty())
        const std::unique_ptr<QLayoutItem> last(takeAt(count() - 1));
}

void FlowLayout::addLayout(QLayout* layout) {
    addChildLayout(layout);
    addItem(layout);
}

void FlowLayout::addItem(QLayoutItem* item) {
    items_.emplace_back(item);
    invalidate();
}

QLayoutItem* FlowLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? items_[index].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
    if (index < 0 || index >= count()) return nullptr;
    QLayoutItem* const item = items_[index].release();
    items_.erase(items_.begin() + index);
    invalidate();
    return item;
}

FlowLayout::Items FlowLayout::shownItems() const {
    Items shown;
    for (const auto& item : items_)
        if (!item->isEmpty()) shown.push_back(item.get());
    return shown;
}

QSize FlowLayout::inOneLine(QSize (QLayoutItem::*size)() const, int spacing) const {
    QSize line(0, 0);
    const Items items = shownItems();
    for (const QLayoutItem* const item : items) {
        const QSize each = (item->*size)();
        line = {line.width() + each.width(), std::max(line.height(), each.height())};
    }
    line.rwidth() += spacing * std::max(0, int(items.size()) - 1);
    return line.grownBy(contentsMargins());
}

QSize FlowLayout::sizeHint() const { return inOneLine(&QLayoutItem::sizeHint, spacing()); }

QSize FlowLayout::minimumSize() const {
    return inOneLine(&QLayoutItem::minimumSize, leastSpacing_);
}

std::vector<int> FlowLayout::widthsInLine(const Items& line, int room) const {
    const int gaps = int(line.size()) - 1;
    std::vector<int> widths = widthsOf(line, &QLayoutItem::sizeHint);
    if (std::accumulate(widths.begin(), widths.end(), gaps * leastSpacing_) > room)
        widths = widthsOf(line, &QLayoutItem::minimumSize);
    if (fill_ == Fill::share) return distributeWidth(widths, room - gaps * spacing());
    for (int& width : widths)
        width = std::min(width, room);
    return widths;
}

std::vector<FlowLayout::Place> FlowLayout::placesInLine(const Items& line, int top, int room,
                                                        bool isOnlyLine) const {
    const std::vector<int> widths = widthsInLine(line, room);
    const int gaps = int(line.size()) - 1;
    const int rest = room - std::accumulate(widths.begin(), widths.end(), 0);
    const int allGaps = fill_ == Fill::ends && isOnlyLine
                            ? rest
                            : std::clamp(rest, gaps * leastSpacing_, gaps * spacing());
    int height = 0;
    for (std::size_t i = 0; i < line.size(); ++i)
        height = std::max(height, heightOf(*line[i], widths[i]));

    std::vector<Place> places;
    int widthBefore = 0;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const int own = fill_ == Fill::share ? height : heightOf(*line[i], widths[i]);
        const int left = widthBefore + (i == 0 ? 0 : allGaps * int(i) / gaps);
        places.push_back({line[i], {left, top + (height - own) / 2, widths[i], own}});
        widthBefore += widths[i];
    }
    return places;
}

std::vector<FlowLayout::Place> FlowLayout::places(int room) const {
    const Items items = shownItems();
    const std::vector<int> counts =
        balancedLines(widthsOf(items, &QLayoutItem::minimumSize), leastSpacing_, room);
    std::vector<Place> all;
    int top = 0;
    auto next = items.begin();
    for (const int count : counts) {
        const std::vector<Place> line =
            placesInLine({next, next + count}, top, room, counts.size() == 1);
        next += count;
        for (const Place& place : line) {
            top = std::max(top, place.rect.bottom() + 1 + spacing());
            all.push_back(place);
        }
    }
    return all;
}

int FlowLayout::heightForWidth(int width) const {
    const QMargins margins = contentsMargins();
    int height = 0;
    for (const Place& place : places(width - margins.left() - margins.right()))
        height = std::max(height, place.rect.bottom() + 1);
    return height + margins.top() + margins.bottom();
}

void FlowLayout::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    const QRect inside = rect.marginsRemoved(contentsMargins());
    const Qt::LayoutDirection direction =
        parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    for (const Place& place : places(inside.width()))
        place.item->setGeometry(
            QStyle::visualRect(direction, inside, place.rect.translated(inside.topLeft())));
}

FlowLayout* groupOf(std::initializer_list<QWidget*> widgets, int spacing) {
    auto* group = new FlowLayout(FlowLayout::Fill::none, spacing);
    for (QWidget* const widget : widgets)
        group->addWidget(widget);
    return group;
}

}  // namespace marlevo
