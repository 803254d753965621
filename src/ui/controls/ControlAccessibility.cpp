#include "ui/controls/ControlAccessibility.h"

#include "ui/controls/ChoiceButton.h"
#include "ui/controls/ChoiceRow.h"
#include "ui/controls/ContinuousSlider.h"
#include "ui/controls/DisclosureButton.h"
#include "ui/controls/IconButton.h"
#include "ui/controls/Popover.h"

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
        // AT-SPI transmits the value as a number only; the description carries its text.
        return kind == QAccessible::Value || kind == QAccessible::Description
                   ? slider_.valueInWords()
                   : QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return slider_.realValue(); }
    void setCurrentValue(const QVariant& value) override {
        if (slider_.isEnabled()) slider_.moveTo(value.toDouble());
    }
    QVariant minimumValue() const override { return slider_.range().least; }
    QVariant maximumValue() const override { return slider_.range().most; }
    QVariant minimumStepSize() const override { return slider_.range().keyStep; }

private:
    ContinuousSlider& slider_;
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

/// One of several choices.
class AccessibleChoice final : public AccessibleButton {
public:
    explicit AccessibleChoice(QAbstractButton* button)
        : AccessibleButton(button, QAccessible::RadioButton), button_(*button) {}

    QString text(QAccessible::Text kind) const override {
        const QString text = AccessibleButton::text(kind);
        return text.isEmpty() && kind == QAccessible::Name ? button_.text() : text;
    }

    QAccessible::State state() const override {
        QAccessible::State state = AccessibleButton::state();
        state.checkable = true;
        state.checked = button_.isChecked();
        return state;
    }

private:
    QAbstractButton& button_;
};

class AccessibleIconButton final : public AccessibleButton {
public:
    explicit AccessibleIconButton(IconButton* button)
        : AccessibleButton(button), button_(*button) {}

    QAccessible::State state() const override {
        QAccessible::State state = AccessibleButton::state();
        state.hasPopup = button_.opensPopover();
        return state;
    }

private:
    IconButton& button_;
};

QAccessibleInterface* makeControlInterface(const QString& className, QObject* object) {
    // The toolkit's cache owns the interface.
    if (auto* slider = accessibleAs<ContinuousSlider>(className, object))
        return new AccessibleSlider(slider);
    if (auto* button = accessibleAs<DisclosureButton>(className, object))
        return new AccessibleDisclosure(button);
    if (auto* button = accessibleAs<ChoiceButton>(className, object))
        return new AccessibleChoice(button);
    if (auto* row = accessibleAs<ChoiceRow>(className, object)) return new AccessibleChoice(row);
    if (auto* button = accessibleAs<IconButton>(className, object))
        return new AccessibleIconButton(button);
    if (auto* popover = accessibleAs<Popover>(className, object))
        return new QAccessibleWidget(popover, QAccessible::Dialog);
    return nullptr;
}

}  // namespace

void installControlAccessibility() { QAccessible::installFactory(makeControlInterface); }

}  // namespace marlevo
