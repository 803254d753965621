#pragma once

#include <QAbstractButton>
#include <QAccessibleWidget>

namespace marlevo {

/// Presents sliders, disclosure buttons, choices, icon buttons and popovers to assistive
/// technology. Must be called before the first of them is shown; further calls do nothing.
void installControlAccessibility();

/// For a factory of accessible interfaces, which the toolkit calls with each class name of an
/// object, the most derived first: `object` as a `Widget` if `className` is that class, else null.
/// So the order in which factories are installed does not matter.
template <class Widget>
Widget* accessibleAs(const QString& className, QObject* object) {
    return className == QLatin1String(Widget::staticMetaObject.className())
               ? qobject_cast<Widget*>(object)
               : nullptr;
}

/// Presents a button with the actions press and set focus, whatever its role. It can have the focus
/// even while it is no Tab stop, as most buttons of a FocusGroup.
class AccessibleButton : public QAccessibleWidget {
public:
    explicit AccessibleButton(QAbstractButton* button, QAccessible::Role role = QAccessible::Button)
        : QAccessibleWidget(button, role), button_(*button) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.focusable = button_.isEnabled();
        return state;
    }

    QStringList actionNames() const override {
        return button_.isEnabled() ? QStringList{pressAction(), setFocusAction()} : QStringList();
    }
    void doAction(const QString& action) override {
        if (action == pressAction())
            button_.click();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    QAbstractButton& button_;
};

}  // namespace marlevo
