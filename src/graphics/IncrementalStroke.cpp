#include "graphics/IncrementalStroke.h"

#include "graphics/IncrementalArea.h"
#include "graphics/IncrementalDistance.h"
#include "graphics/StrokeByDistance.h"

namespace marlevo {

std::unique_ptr<IncrementalStroke> IncrementalStroke::make(double deviceWidth) {
    if (deviceWidth <= maxWidthByDistance)
        return std::make_unique<IncrementalDistance>(deviceWidth);
    return std::make_unique<IncrementalArea>(deviceWidth);
}

}  // namespace marlevo
