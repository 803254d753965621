#include "ui/canvas/PointerDrag.h"

#include <cmath>
#include <utility>

namespace marlevo {

void PointerDrag::press(QPointF at) {
    start_ = at;
    maybeClick_ = true;
}

void PointerDrag::moveTo(QPointF position) {
    const QPointF way = translationTo(position);
    if (std::hypot(way.x(), way.y()) > clickTolerance) maybeClick_ = false;
}

bool PointerDrag::release() {
    start_.reset();
    return std::exchange(maybeClick_, false);
}

QPointF PointerDrag::translationTo(QPointF position) const {
    return start_ ? position - *start_ : QPointF();
}

}  // namespace marlevo
