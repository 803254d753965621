#include "ui/sidebar/LayerRow.h"

#include "ui/controls/ControlPainting.h"
#include "ui/controls/IconEngine.h"

#include <QAccessible>
#include <QEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <initializer_list>

namespace marlevo {

namespace {

// View points.
constexpr int spacing = 8;
constexpr int lineSpacing = 4;
constexpr int sidePadding = 8;
constexpr int verticalPadding = 6;
constexpr int usualDot = 7;

int dotSize() { return grownWithText(usualDot); }

}  // namespace

EyeButton::EyeButton(QWidget* parent) : ToolButton(Look::compact, {}, parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void EyeButton::showLayer(const Layer& layer) {
    const QString name = QString::fromStdString(layer.name);
    const bool isVisible = layer.isVisible;
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
    for (QWidget* const part : std::initializer_list<QWidget*>{&thumbnail_, &name_, &eye_})
        part->setParent(this);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    connect(&eye_, &EyeButton::clicked, this, &LayerRow::visibilityToggled);
}

void LayerRow::showLayer(const Layer& layer, CanvasSize canvas) {
    const QString name = QString::fromStdString(layer.name);
    setAccessibleName(name);
    name_.setText(name);
    thumbnail_.showLayer(layer, canvas);
    eye_.showLayer(layer);
}

void LayerRow::showActive(bool isActive) {
    if (isActive == this->isActive()) return;
    setActive(isActive);
    thumbnail_.setActive(isActive);
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

int LayerRow::roomBesideThumbnail(int width) const {
    return width - 2 * sidePadding - 3 * spacing - thumbnail_.sizeHint().width() -
           eye_.sizeHint().width() - dotSize();
}

/// Whether the name has a line of its own in a row of this width.
bool LayerRow::isNameBelow(int width) const {
    const int fewLetters = name_.fontMetrics().horizontalAdvance(QStringLiteral("nnnnn"));
    return roomBesideThumbnail(width) < fewLetters;
}

QSize LayerRow::sizeHint() const {
    const int whole = name_.sizeHint().width();
    const int width = whole - roomBesideThumbnail(0);
    return {width, heightForWidth(width)};
}

QSize LayerRow::minimumSizeHint() const {
    const int width = -roomBesideThumbnail(0);
    return {width, heightForWidth(width)};
}

int LayerRow::heightForWidth(int width) const {
    const int name = name_.sizeHint().height();
    const int parts = std::max(thumbnail_.sizeHint().height(), eye_.sizeHint().height());
    const int content = isNameBelow(width) ? parts + lineSpacing + name : std::max(parts, name);
    return content + 2 * verticalPadding;
}

void LayerRow::layOut() {
    const QRect inside =
        rect().adjusted(sidePadding, verticalPadding, -sidePadding, -verticalPadding);
    QRect line = inside;
    QRect name = inside;
    if (isNameBelow(width())) {
        name.setTop(inside.bottom() + 1 - name_.sizeHint().height());
        line.setBottom(name.top() - 1 - lineSpacing);
    } else {
        name.setLeft(inside.left() + thumbnail_.sizeHint().width() + spacing);
        name.setWidth(roomBesideThumbnail(width()));
    }
    const auto place = [&](QWidget& part, int left) {
        const QSize size = part.sizeHint();
        const QRect rect(QPoint(left, line.top() + (line.height() - size.height()) / 2), size);
        part.setGeometry(QStyle::visualRect(layoutDirection(), this->rect(), rect));
    };
    const int dotLeft = inside.right() + 1 - dotSize();
    place(thumbnail_, inside.left());
    place(eye_, dotLeft - spacing - eye_.sizeHint().width());
    name_.setGeometry(QStyle::visualRect(layoutDirection(), rect(), name));
    dot_ = QRect(dotLeft, line.top() + (line.height() - dotSize()) / 2, dotSize(), dotSize());
}

void LayerRow::resizeEvent(QResizeEvent*) { layOut(); }

bool LayerRow::event(QEvent* event) {
    if (event->type() == QEvent::LayoutDirectionChange) layOut();
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        layOut();
    }
    return ChoiceButton::event(event);
}

void LayerRow::paintEvent(QPaintEvent* event) {
    ChoiceButton::paintEvent(event);
    QPainter painter(this);
    const QColor gray = withOpacity(semanticColor(SemanticColor::gray), opacity::inactiveDot);
    paintRoundedRect(painter, QStyle::visualRect(layoutDirection(), rect(), dot_),
                     dot_.width() / 2.0, isActive() ? semanticColor(SemanticColor::blue) : gray);
}

}  // namespace marlevo
