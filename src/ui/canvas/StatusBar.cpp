#include "ui/canvas/StatusBar.h"

#include "model/DrawingDocument.h"
#include "ui/canvas/CanvasAccessibility.h"
#include "ui/canvas/CanvasTexts.h"
#include "ui/canvas/CanvasZoom.h"
#include "ui/controls/ElidedToolTip.h"
#include "ui/controls/SemanticColors.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace marlevo {

namespace {

// View points.
constexpr int itemSpacing = 12;
constexpr int horizontalPadding = 12;
constexpr int verticalPadding = 5;
constexpr int zoomSpacing = 6;
constexpr int sliderWidth = 80;
constexpr int zoomTextWidth = 36;
constexpr int nameIndent = 4;

constexpr double keyStep = 0.01;

constexpr TextLabel::Look zoomNumber{TypeStyle::caption, QFont::Medium, SemanticColor::secondary,
                                     TextLabel::Digits::monospaced};
constexpr TextLabel::Look layerName{TypeStyle::caption, QFont::Normal, SemanticColor::tertiary};

}  // namespace

StatusBar::StatusBar(DrawingDocument& document, std::function<void()> fitToWindow, QWidget* parent)
    : QWidget(parent), document_(document), canvasSize_({}, textlook::captionNumber),
      strokeCount_({}, textlook::caption),
      zoom_(tr("Zoom"), {minZoom, maxZoom, keyStep}, nullptr, ContinuousSlider::Knob::small),
      zoomText_({}, zoomNumber), actualSize_(tr("100%")), fit_(tr("Fit")),
      activeLayer_({}, layerName),
      follower_(document.changeRegistry(), [this] { showDocument(); }) {
    installCanvasAccessibility();
    connect(&zoom_, &ContinuousSlider::moved, this, [this](double zoom) { document_.zoom = zoom; });
    connect(&actualSize_, &SmallButton::clicked, this, [this] { document_.zoom = 1.0; });
    connect(&fit_, &SmallButton::clicked, this, std::move(fitToWindow));
    new ElidedToolTip(this, [this] { return hiddenTexts(); });
    layOut();
}

void StatusBar::layOut() {
    zoom_.setFixedWidth(sliderWidth);
    zoomText_.setMinimumWidth(zoomTextWidth);
    activeLayer_.setContentsMargins(nameIndent, 0, 0, 0);

    auto* zoomCluster = new QHBoxLayout;
    zoomCluster->setSpacing(zoomSpacing);
    for (QWidget* const item :
         std::initializer_list<QWidget*>{&zoom_, &zoomText_, &actualSize_, &fit_})
        zoomCluster->addWidget(item);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(horizontalPadding, verticalPadding, horizontalPadding, verticalPadding);
    row->setSpacing(itemSpacing);
    row->addWidget(&canvasSize_);
    row->addWidget(&strokeCount_);
    row->addStretch(1);
    row->addLayout(zoomCluster);
    row->addWidget(&activeLayer_);
}

void StatusBar::showDocument() {
    const CanvasSize size = document_.canvasSize;
    canvasSize_.setText(wholePixels(size.width) + QChar(0x00D7) + wholePixels(size.height));
    strokeCount_.setText(localizedStrokeCount(strokeCount(document_.layers)));

    const QString percent = tr("%1%").arg(static_cast<qint64>(document_.zoom * 100));
    zoom_.showValue(document_.zoom, percent);
    zoomText_.setText(percent);

    const Layer* const layer = document_.activeLayer();
    activeLayer_.setText(layer != nullptr ? QString::fromStdString(layer->name) : QString());
    hasActiveLayer_ = layer != nullptr;
    fitTexts();
}

int StatusBar::widthOfControls() const {
    return 2 * horizontalPadding + sliderWidth + zoomSpacing + actualSize_.sizeHint().width() +
           zoomSpacing + fit_.sizeHint().width();
}

/// Shows the texts that have room beside the controls. The zoom has precedence, then the size and
/// the strokes; the name of the layer, which the sidebar shows too, gets what is left.
void StatusBar::fitTexts() {
    int room = width() - widthOfControls();
    const auto show = [&](TextLabel& label, int spacing) {
        const int needed = label.sizeHint().expandedTo(label.minimumSize()).width() + spacing;
        label.setVisible(needed <= room);
        room = needed <= room ? room - needed : 0;
    };
    show(zoomText_, zoomSpacing);
    show(canvasSize_, itemSpacing);
    show(strokeCount_, itemSpacing);
    room -= itemSpacing;
    activeLayer_.setVisible(hasActiveLayer_ && room >= activeLayer_.minimumSizeHint().width());
    activeLayer_.setMaximumWidth(std::clamp(room, 0, activeLayer_.sizeHint().width()));
}

/// For the tooltip.
QString StatusBar::hiddenTexts() const {
    QStringList texts;
    for (const TextLabel* const label : {&canvasSize_, &strokeCount_, &zoomText_, &activeLayer_})
        if (label->isHidden() && !label->text().isEmpty()) texts << label->text();
    return texts.join(QStringLiteral(", "));
}

QSize StatusBar::minimumSizeHint() const {
    return {widthOfControls(), QWidget::minimumSizeHint().height()};
}

bool StatusBar::event(QEvent* event) {
    const bool isHandled = QWidget::event(event);
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) fitTexts();
    return isHandled;
}

void StatusBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(0, 0, width(), 1, semanticColor(SemanticColor::separator));
}

}  // namespace marlevo
