#pragma once

namespace marlevo {

// What the sections of the sidebar have in common, in view points.
inline constexpr int sectionSpacing = 10;
inline constexpr int sectionPadding = 4;

}  // namespace marlevo
