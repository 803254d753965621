#include "ui/canvas/StatusBar.h"

#include "model/DrawingDocument.h"
#include "ui/canvas/CanvasAccessibility.h"
#include "ui/canvas/CanvasTexts.h"
#include "ui/canvas/ZoomRange.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/SmallButton.h"

#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>
#include <array>
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
      zoomText_({}, zoomNumber), activeLayer_({}, layerName),
      follower_(document.changeRegistry(), [this] { showDocument(); }) {
    installCanvasAccessibility();
    auto* const actualSize = new SmallButton(tr("100%"));
    auto* const fit = new SmallButton(tr("Fit"));
    connect(&zoom_, &ContinuousSlider::moved, this, [this](double zoom) { document_.zoom = zoom; });
    connect(actualSize, &SmallButton::clicked, this, [this] { document_.zoom = 1.0; });
    connect(fit, &SmallButton::clicked, this, std::move(fitToWindow));
    layOut(actualSize, fit);
}

void StatusBar::layOut(QWidget* actualSize, QWidget* fit) {
    zoom_.setFixedWidth(sliderWidth);
    zoomText_.setMinimumWidth(zoomTextWidth);
    activeLayer_.setContentsMargins(nameIndent, 0, 0, 0);

    auto* zoomCluster = new QHBoxLayout;
    zoomCluster->setSpacing(zoomSpacing);
    for (QWidget* const item : std::initializer_list<QWidget*>{&zoom_, &zoomText_, actualSize, fit})
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
    activeLayer_.setVisible(layer != nullptr);
    if (layer != nullptr) activeLayer_.setText(QString::fromStdString(layer->name));
    if (layout() != nullptr) shortenLabels();
}

/// Without enough room, the name of the layer is shortened first, because the sidebar shows it too,
/// and the zoom last.
void StatusBar::shortenLabels() {
    const std::array labels{&activeLayer_, &strokeCount_, &canvasSize_, &zoomText_};
    for (TextLabel* const label : labels)
        label->setMaximumWidth(QWIDGETSIZE_MAX);
    int missing = layout()->sizeHint().width() - width();
    for (TextLabel* const label : labels) {
        if (label->isHidden()) continue;
        const int whole = label->sizeHint().width();
        const int given = std::clamp(missing, 0, whole - label->minimumSizeHint().width());
        if (given > 0) label->setMaximumWidth(whole - given);
        missing -= given;
    }
}

void StatusBar::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    shortenLabels();
}

void StatusBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(0, 0, width(), 1, semanticColor(SemanticColor::separator));
}

}  // namespace marlevo
