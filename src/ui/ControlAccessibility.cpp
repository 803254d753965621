#include "ui/ControlAccessibility.h"

#include "ui/ContinuousSlider.h"
#include "ui/DisclosureButton.h"
#include "ui/LayerRows.h"
#include "ui/NewCanvasSheet.h"
#include "ui/StatusBar.h"

#include <QAccessibleWidget>

#include <algorithm>

namespace marlevo {

namespace {

class AccessibleSlider final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleSlider(ContinuousSlider* slider)
        : QAccessibleWidget(slider, QAccessible::Slider), slider_(*slider) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override {
        // The bus passes the value on as a number only: the words go with it as a description.
        return kind == QAccessible::Value || kind == QAccessible::Description
                   ? slider_.valueInWords()
                   : QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return slider_.value(); }
    void setCurrentValue(const QVariant& value) override {
        if (slider_.isEnabled()) slider_.moveTo(value.toDouble());
    }
    QVariant minimumValue() const override { return slider_.range().least; }
    QVariant maximumValue() const override { return slider_.range().most; }
    QVariant minimumStepSize() const override { return slider_.range().keyStep; }

private:
    ContinuousSlider& slider_;
};

/// A button, whatever it looks like: it is pressed.
class AccessibleButton : public QAccessibleWidget {
public:
    explicit AccessibleButton(QAbstractButton* button, QAccessible::Role role = QAccessible::Button)
        : QAccessibleWidget(button, role), button_(*button) {}

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

class AccessibleDisclosure final : public AccessibleButton {
public:
    explicit AccessibleDisclosure(DisclosureButton* button)
        : AccessibleButton(button), button_(*button) {}

    QAccessible::State state() const override {
        QAccessible::State state = AccessibleButton::state();
        state.expandable = true;
        state.expanded = button_.isOpen();
        state.collapsed = !button_.isOpen();
        return state;
    }

private:
    DisclosureButton& button_;
};

/// A button that stays down while its choice is the one.
class AccessibleChoice final : public AccessibleButton {
public:
    explicit AccessibleChoice(ChoiceButton* button) : AccessibleButton(button), button_(*button) {}

    QAccessible::State state() const override {
        QAccessible::State state = AccessibleButton::state();
        state.checkable = true;
        state.checked = state.pressed = button_.isActive();
        return state;
    }

private:
    ChoiceButton& button_;
};

/// A line of the list of layers: pressed, it is selected; toggled, its layer is shown or hidden.
class AccessibleLayer final : public AccessibleButton {
public:
    explicit AccessibleLayer(LayerRow* row)
        : AccessibleButton(row, QAccessible::ListItem), row_(*row) {}

    QAccessible::State state() const override {
        QAccessible::State state = AccessibleButton::state();
        state.selectable = true;
        state.selected = row_.isActive();
        return state;
    }

    QStringList actionNames() const override {
        return AccessibleButton::actionNames() << toggleAction();
    }
    void doAction(const QString& action) override {
        if (action == toggleAction())
            Q_EMIT row_.visibilityToggled();
        else
            AccessibleButton::doAction(action);
    }

private:
    LayerRow& row_;
};

/// In the order of the list, whatever the age of its rows.
class AccessibleLayerList final : public QAccessibleWidget {
public:
    explicit AccessibleLayerList(LayerRows* list)
        : QAccessibleWidget(list, QAccessible::List), list_(*list) {}

    int childCount() const override { return int(list_.rows().size()); }

    QAccessibleInterface* child(int index) const override {
        const bool isThere = index >= 0 && index < childCount();
        return isThere ? QAccessible::queryAccessibleInterface(list_.rows()[index]) : nullptr;
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto& rows = list_.rows();
        const auto found = std::find(rows.begin(), rows.end(), child->object());
        return found != rows.end() ? int(found - rows.begin()) : -1;
    }

private:
    LayerRows& list_;
};

// What is returned is owned by the toolkit's cache of interfaces.
QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    if (auto* slider = qobject_cast<ContinuousSlider*>(object)) return new AccessibleSlider(slider);
    if (auto* button = qobject_cast<DisclosureButton*>(object))
        return new AccessibleDisclosure(button);
    if (auto* row = qobject_cast<LayerRow*>(object)) return new AccessibleLayer(row);
    if (auto* button = qobject_cast<ChoiceButton*>(object)) return new AccessibleChoice(button);
    if (auto* rows = qobject_cast<LayerRows*>(object)) return new AccessibleLayerList(rows);
    if (auto* thumbnail = qobject_cast<LayerThumbnailView*>(object))
        return new QAccessibleWidget(thumbnail, QAccessible::Graphic);
    if (auto* sheet = qobject_cast<NewCanvasSheet*>(object))
        return new QAccessibleWidget(sheet, QAccessible::Dialog);
    if (auto* bar = qobject_cast<StatusBar*>(object))
        return new QAccessibleWidget(bar, QAccessible::StatusBar);
    return nullptr;
}

}  // namespace

void installControlAccessibility() { QAccessible::installFactory(makeInterface); }

}  // namespace marlevo
