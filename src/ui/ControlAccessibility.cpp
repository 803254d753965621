#include "ui/ControlAccessibility.h"

#include "ui/ContinuousSlider.h"
#include "ui/DisclosureButton.h"
#include "ui/LayerThumbnailView.h"
#include "ui/NewCanvasSheet.h"
#include "ui/StatusBar.h"

#include <QAccessibleWidget>

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
        return kind == QAccessible::Value ? slider_.valueInWords() : QAccessibleWidget::text(kind);
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

class AccessibleDisclosure final : public QAccessibleWidget {
public:
    explicit AccessibleDisclosure(DisclosureButton* button)
        : QAccessibleWidget(button, QAccessible::Button), button_(*button) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = button_.isOpen();
        state.collapsed = !button_.isOpen();
        return state;
    }

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& action) override {
        if (action == pressAction())
            button_.click();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    DisclosureButton& button_;
};

// What is returned is owned by the toolkit's cache of interfaces.
QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    if (auto* slider = qobject_cast<ContinuousSlider*>(object)) return new AccessibleSlider(slider);
    if (auto* button = qobject_cast<DisclosureButton*>(object))
        return new AccessibleDisclosure(button);
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
