#include "graphics/GrowingStroke.h"

#include "graphics/GrowingOutline.h"
#include "graphics/GrowingStrokeByDistance.h"
#include "graphics/StrokeByDistance.h"

namespace marlevo {

std::unique_ptr<GrowingStroke> GrowingStroke::make(double deviceWidth) {
    if (deviceWidth <= maxWidthByDistance)
        return std::make_unique<GrowingStrokeByDistance>(deviceWidth);
    return std::make_unique<GrowingOutline>(deviceWidth);
}

}  // namespace marlevo
