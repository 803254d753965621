#pragma once

namespace marlevo {

/// Whether windows may have transparent pixels now. True on Wayland; on X11 only while a
/// compositing manager runs, without which transparent pixels are black.
bool isScreenComposited();

}  // namespace marlevo
