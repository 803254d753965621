#include "ui/controls/ControlAccessibility.h"

#include "ui/controls/ChoiceButton.h"
#include "ui/controls/ContinuousSlider.h"
#include "ui/controls/DisclosureButton.h"

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

/// A toggle button: checked and pressed while its choice is active.
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

QAccessibleInterface* makeControlInterface(const QString& className, QObject* object) {
    // The toolkit's cache owns the interface.
    if (auto* slider = accessibleAs<ContinuousSlider>(className, object))
        return new AccessibleSlider(slider);
    if (auto* button = accessibleAs<DisclosureButton>(className, object))
        return new AccessibleDisclosure(button);
    if (auto* button = accessibleAs<ChoiceButton>(className, object))
        return new AccessibleChoice(button);
    return nullptr;
}

}  // namespace

void installControlAccessibility() { QAccessible::installFactory(makeControlInterface); }

}  // namespace marlevo
