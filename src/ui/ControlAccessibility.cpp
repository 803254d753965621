#include "ui/ControlAccessibility.h"

#include "ui/ContinuousSlider.h"

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

// What is returned is owned by the toolkit's cache of interfaces.
QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    if (auto* slider = qobject_cast<ContinuousSlider*>(object)) return new AccessibleSlider(slider);
    return nullptr;
}

}  // namespace

void installControlAccessibility() { QAccessible::installFactory(makeInterface); }

}  // namespace marlevo
