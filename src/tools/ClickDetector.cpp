#include "tools/ClickDetector.h"

#include <cmath>
#include <utility>

namespace marlevo {

void ClickDetector::press(Point at) {
    start_ = at;
    click_ = Click::yes;
}

void ClickDetector::move(Point to) {
    const Size way = sincePress(to);
    if (std::hypot(way.width, way.height) > tolerance) click_ = Click::no;
}

Click ClickDetector::release(Point at) {
    move(at);
    return std::exchange(click_, Click::no);
}

Size ClickDetector::sincePress(Point position) const {
    return {position.x - start_.x, position.y - start_.y};
}

}  // namespace marlevo
