#pragma once

namespace marlevo {

/// True unless the style or the desktop's settings disable animation.
bool isMotionWanted();

}  // namespace marlevo
