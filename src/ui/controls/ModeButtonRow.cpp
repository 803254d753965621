#include "ui/controls/ModeButtonRow.h"

#include "ui/controls/DistributeWidth.h"

#include <QEvent>
#include <QStyle>

#include <algorithm>

namespace marlevo {

namespace {

constexpr int spacing = 6;

}  // namespace

ModeButtonRow::ModeButtonRow(std::vector<ModeButton*> buttons, QWidget* parent)
    : QWidget(parent), buttons_(std::move(buttons)) {
    for (ModeButton* button : buttons_)
        button->setParent(this);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize ModeButtonRow::total(QSize (ModeButton::*hint)() const) const {
    QSize size(-spacing, 0);
    for (const ModeButton* button : buttons_) {
        const QSize each = (button->*hint)();
        size = {size.width() + spacing + each.width(), std::max(size.height(), each.height())};
    }
    return size;
}

QSize ModeButtonRow::sizeHint() const { return total(&ModeButton::sizeHint); }

QSize ModeButtonRow::minimumSizeHint() const { return total(&ModeButton::minimumSizeHint); }

void ModeButtonRow::layOut() {
    const int gaps = spacing * (int(buttons_.size()) - 1);
    // The padding gives way before a label is shortened.
    const bool isTight = sizeHint().width() > width();
    std::vector<int> needs;
    for (const ModeButton* button : buttons_)
        needs.push_back(isTight ? button->tightWidth() : button->sizeHint().width());
    const std::vector<int> shares = distributeWidth(needs, width() - gaps);
    int left = 0;
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        const QRect place(left, 0, shares[i], height());
        buttons_[i]->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
        left += shares[i] + spacing;
    }
}

void ModeButtonRow::resizeEvent(QResizeEvent*) { layOut(); }

bool ModeButtonRow::event(QEvent* event) {
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::LayoutDirectionChange) layOut();
    if (event->type() == QEvent::LayoutRequest) {
        layOut();
        updateGeometry();
    }
    return handled;
}

}  // namespace marlevo
