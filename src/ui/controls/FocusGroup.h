#pragma once

#include <QObject>

#include <vector>

class QAbstractButton;
class QKeyEvent;

namespace marlevo {

/// Makes one Tab stop of several buttons. Among them the arrow keys, Home and End move the focus,
/// without a choice; Space and Return press. The Tab stop is the button that had the focus last or,
/// without the focus in the group, the one that was checked last; at first the first.
///
/// Buttons inside a member, such as the eye in a row, are further Tab stops while the member is the
/// stop.
class FocusGroup final : public QObject {
public:
    explicit FocusGroup(QObject* parent = nullptr) : QObject(parent) {}

    /// In the order in which the keys move. A member that is deleted must be taken out before.
    void setMembers(std::vector<QAbstractButton*> members);

    /// Whether a member or something inside it has the focus.
    bool hasFocus() const;

    void moveFocusTo(QAbstractButton& member);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setStop(QAbstractButton* stop);
    QAbstractButton* memberOf(const QObject& widget) const;
    QAbstractButton* target(const QKeyEvent& press, const QAbstractButton& from) const;

    std::vector<QAbstractButton*> members_;
    QAbstractButton* stop_ = nullptr;
};

}  // namespace marlevo
