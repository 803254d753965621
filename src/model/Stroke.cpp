#include "model/Stroke.h"

namespace marlevo {

Rect Stroke::boundingRect() const { return points.bounds(); }

}  // namespace marlevo
