#pragma once

namespace marlevo {

/// Makes assistive technology see the program's own controls as what they are. To be called before
/// the first of them is shown; further calls do nothing.
void installControlAccessibility();

}  // namespace marlevo
