#pragma once

namespace marlevo {

/// Presents the sidebar, the list of layers, its rows and their thumbnails to assistive technology.
/// Must be called before the first of them is shown; further calls do nothing.
void installSidebarAccessibility();

}  // namespace marlevo
