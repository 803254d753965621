#include "ui/controls/IconEngine.h"

#include "ui/controls/ControlPainting.h"

#include <QPainter>
#include <QPen>
#include <QPixmap>

namespace marlevo {

IconEngine::IconEngine(Icon icon, std::optional<SemanticColor> color)
    : icon_(icon), color_(color) {}

void IconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) {
    paintIcon(*painter, icon_, rect, color_ ? semanticColor(*color_) : painter->pen().color());
}

QPixmap IconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(semanticColor(SemanticColor::primary));
    if (mode == QIcon::Disabled) painter.setOpacity(opacity::disabled);
    paint(&painter, QRect({}, size), mode, state);
    return pixmap;
}

QIconEngine* IconEngine::clone() const { return new IconEngine(*this); }

QIcon makeIcon(Icon icon, std::optional<SemanticColor> color) {
    return QIcon(new IconEngine(icon, color));  // owned by the icon
}

}  // namespace marlevo
