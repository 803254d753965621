#include "ui/sidebar/LayerRow.h"

#include "ui/controls/ControlPainting.h"
#include "ui/controls/IconEngine.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QPainter>

namespace marlevo {

namespace {

constexpr int spacing = 8;
constexpr int sidePadding = 8;
constexpr int verticalPadding = 6;
constexpr int dotSize = 7;

}  // namespace

EyeButton::EyeButton(QWidget* parent) : ToolButton(Look::compact, {}, parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void EyeButton::showLayer(const QString& name, bool isVisible) {
    if (name == layerName_ && isVisible == isLayerVisible_) return;
    layerName_ = name;
    isLayerVisible_ = isVisible;
    setToolTip(isVisible ? tr("Hide layer") : tr("Show layer"));
    setAccessibleName((isVisible ? tr("Hide layer: %1") : tr("Show layer: %1")).arg(name));
    setIcon(isVisible ? makeIcon(Icon::eye) : makeIcon(Icon::eyeSlash, SemanticColor::tertiary));
}

LayerRow::LayerRow(const Services& services, ImageCache& images, const Uuid& layerID,
                   QWidget* parent)
    : ChoiceButton(Look::listRow, {}, parent), layerID_(layerID), thumbnail_(services, images),
      name_({}, {TypeStyle::callout}) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(sidePadding, verticalPadding, sidePadding, verticalPadding);
    row->setSpacing(spacing);
    row->addWidget(&thumbnail_);
    row->addWidget(&name_, 1);
    row->addWidget(&eye_);
    row->addSpacing(spacing + dotSize);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(&eye_, &EyeButton::clicked, this, &LayerRow::visibilityToggled);
}

void LayerRow::showLayer(const Layer& layer, CanvasSize canvas, bool isActive) {
    const QString name = QString::fromStdString(layer.name);
    setAccessibleName(name);
    name_.setText(name);
    thumbnail_.showLayer(layer, canvas, isActive);
    eye_.showLayer(name, layer.isVisible);
    if (isActive == this->isActive()) return;
    setActive(isActive);
    QAccessible::State changed;
    changed.selected = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

QWidget* LayerRow::followInTabOrder(QWidget* previous) {
    // The toolkit orders Tab stops only.
    setFocusPolicy(Qt::TabFocus);
    eye_.setFocusPolicy(Qt::TabFocus);
    if (previous) setTabOrder(previous, this);
    setTabOrder(this, &eye_);
    return &eye_;
}

QSize LayerRow::sizeHint() const { return layout()->sizeHint(); }

QSize LayerRow::minimumSizeHint() const { return layout()->minimumSize(); }

void LayerRow::paintEvent(QPaintEvent* event) {
    ChoiceButton::paintEvent(event);
    QPainter painter(this);
    const int left = isRightToLeft() ? sidePadding : width() - sidePadding - dotSize;
    const QRectF dot(left, (height() - dotSize) / 2.0, dotSize, dotSize);
    const QColor gray = withOpacity(semanticColor(SemanticColor::gray), 0.15);
    paintRoundedRect(painter, dot, dotSize / 2.0,
                     isActive() ? semanticColor(SemanticColor::blue) : gray);
}

}  // namespace marlevo
