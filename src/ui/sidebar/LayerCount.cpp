#include "ui/sidebar/LayerCount.h"

#include "model/DrawingDocument.h"
#include "ui/controls/ControlPainting.h"

#include <QPainter>

namespace marlevo {

namespace {

constexpr int sidePadding = 6;
constexpr int verticalPadding = 2;

}  // namespace

LayerCount::LayerCount(DrawingDocument& document, QWidget* parent)
    : TextLabel({}, {TypeStyle::caption2, QFont::Medium, SemanticColor::tertiary}, parent),
      follower_(document.changeRegistry(), [this, &document] {
          setText(locale().toString(qulonglong(document.layers->size())));
      }) {
    setContentsMargins(sidePadding, verticalPadding, sidePadding, verticalPadding);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void LayerCount::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    paintRoundedRect(painter, rect(), height() / 2.0, semanticColor(SemanticColor::quaternaryFill));
    painter.end();
    TextLabel::paintEvent(event);
}

}  // namespace marlevo
