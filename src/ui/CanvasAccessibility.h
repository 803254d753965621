#pragma once

namespace marlevo {

/// Makes assistive technology see canvas views as canvases. To be called once, before the first of
/// them is shown; further calls do nothing.
void installCanvasAccessibility();

}  // namespace marlevo
