#pragma once

namespace marlevo {

// Measures that the sections of the sidebar share, in view points.
inline constexpr int sectionSpacing = 10;
inline constexpr int sectionPadding = 4;

}  // namespace marlevo
