#include "graphics/IncrementalStroke.h"

#include "graphics/Rasterizer.h"

namespace marlevo {

std::unique_ptr<IncrementalStroke> IncrementalStroke::make(double deviceWidth) {
    return deviceWidth <= maxWidthByDistance ? makeByDistance(deviceWidth)
                                             : makeByArea(deviceWidth);
}

}  // namespace marlevo
