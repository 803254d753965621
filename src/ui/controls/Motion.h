#pragma once

namespace marlevo {

/// Whether things may move on screen; the desktop's settings can forbid it.
bool isMotionWanted();

}  // namespace marlevo
