#include "ui/controls/FocusGroup.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QScrollArea>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace marlevo {

namespace {

std::vector<QAbstractButton*> withButtonsInside(QAbstractButton& member) {
    const auto inside = member.findChildren<QAbstractButton*>();
    std::vector<QAbstractButton*> all{&member};
    all.insert(all.end(), inside.begin(), inside.end());
    return all;
}

void bringIntoSight(QWidget& widget) {
    for (QWidget* above = widget.parentWidget(); above; above = above->parentWidget())
        if (auto* const area = qobject_cast<QScrollArea*>(above))
            area->ensureWidgetVisible(&widget);
}

}  // namespace

void FocusGroup::setMembers(std::vector<QAbstractButton*> members) {
    for (QAbstractButton* const member : members) {
        if (std::find(members_.begin(), members_.end(), member) != members_.end()) continue;
        for (QAbstractButton* const button : withButtonsInside(*member))
            button->installEventFilter(this);
        connect(member, &QAbstractButton::toggled, this, [this, member](bool isChecked) {
            if (isChecked && !hasFocus() && memberOf(*member)) setStop(member);
        });
    }
    members_ = std::move(members);
    const bool hasStop = std::find(members_.begin(), members_.end(), stop_) != members_.end();
    const auto checked = std::find_if(members_.begin(), members_.end(),
                                      [](const auto* member) { return member->isChecked(); });
    if (!hasStop)
        stop_ = checked != members_.end() ? *checked
                : members_.empty()        ? nullptr
                                          : members_.front();
    setStop(stop_);
}

bool FocusGroup::hasFocus() const {
    const QWidget* const focused = QApplication::focusWidget();
    return focused != nullptr && memberOf(*focused) != nullptr;
}

void FocusGroup::moveFocusTo(QAbstractButton& member) {
    setStop(&member);
    member.setFocus(Qt::TabFocusReason);
    bringIntoSight(member);
}

void FocusGroup::setStop(QAbstractButton* stop) {
    stop_ = stop;
    for (QAbstractButton* const member : members_)
        for (QAbstractButton* const button : withButtonsInside(*member))
            button->setFocusPolicy(member == stop ? Qt::TabFocus : Qt::NoFocus);
}

QAbstractButton* FocusGroup::memberOf(const QObject& widget) const {
    for (const QObject* object = &widget; object; object = object->parent())
        for (QAbstractButton* const member : members_)
            if (member == object) return member;
    return nullptr;
}

/// Null when the key does not move the focus.
QAbstractButton* FocusGroup::target(const QKeyEvent& press, const QAbstractButton& from) const {
    const auto last = std::ssize(members_) - 1;
    const auto now = std::find(members_.begin(), members_.end(), &from) - members_.begin();
    const int forward = from.isRightToLeft() ? -1 : 1;
    const auto neighbour = [&](int step) {
        return members_[std::clamp(now + step, std::ptrdiff_t{0}, last)];
    };
    switch (press.key()) {
    case Qt::Key_Up:
        return neighbour(-1);
    case Qt::Key_Down:
        return neighbour(1);
    case Qt::Key_Left:
        return neighbour(-forward);
    case Qt::Key_Right:
        return neighbour(forward);
    case Qt::Key_Home:
        return members_.front();
    case Qt::Key_End:
        return members_.back();
    default:
        return nullptr;
    }
}

bool FocusGroup::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::FocusIn) return false;
    QAbstractButton* const member = memberOf(*watched);
    if (member == nullptr) return false;
    if (event->type() == QEvent::FocusIn) {
        setStop(member);
        return false;
    }
    const auto& press = static_cast<const QKeyEvent&>(*event);
    if ((press.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
    if (press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter) {
        if (!press.isAutoRepeat()) static_cast<QAbstractButton*>(watched)->click();
        return true;
    }
    QAbstractButton* const next = target(press, *member);
    if (next == nullptr) return false;
    moveFocusTo(*next);
    return true;
}

}  // namespace marlevo
