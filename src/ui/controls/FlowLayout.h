#pragma once

#include <QLayout>

#include <initializer_list>
#include <memory>
#include <vector>

namespace marlevo {

/// Places items side by side, from the leading side, and wraps them to more lines where the width
/// ends: as few lines as possible, with numbers of items that are as equal as possible and do not
/// increase. An item that is wider than a line gets the whole line and its height for that width.
///
/// minimumSize() is the size of one line. A parent widget may be narrower: it gets the horizontal
/// policy Ignored. Measures are in view points.
class FlowLayout final : public QLayout {
    Q_OBJECT

public:
    enum class Fill : unsigned char {
        none,   ///< items have their preferred width
        ends,   ///< the same, but if one line is enough, the last item is at the trailing end
        share,  ///< the items of a line divide its width (DistributeWidth.h) and have its height
    };

    /// A layout without a parent is to be added to another layout.
    FlowLayout(Fill fill, int spacing, QWidget* parent = nullptr);

    ~FlowLayout() override;

    /// The distance to which the items of a line approach before they wrap. At first the spacing.
    void setLeastSpacing(int spacing) { leastSpacing_ = spacing; }

    void addLayout(QLayout* layout);

    void addItem(QLayoutItem* item) override;
    int count() const override { return int(items_.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    void setGeometry(const QRect& rect) override;

private:
    using Items = std::vector<QLayoutItem*>;
    struct Place {
        QLayoutItem* item;
        QRect rect;  ///< as if the layout began at the origin and reading went rightwards
    };

    Items shownItems() const;
    QSize inOneLine(QSize (QLayoutItem::*size)() const, int spacing) const;
    std::vector<int> widthsInLine(const Items& line, int room) const;
    std::vector<Place> placesInLine(const Items& line, int top, int room, bool isOnlyLine) const;
    std::vector<Place> places(int room) const;

    Fill fill_;
    int leastSpacing_;
    std::vector<std::unique_ptr<QLayoutItem>> items_;
};

/// A part of another layout: the widgets side by side with their preferred width.
FlowLayout* groupOf(std::initializer_list<QWidget*> widgets, int spacing);

}  // namespace marlevo
