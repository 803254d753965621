#pragma once

#include "graphics/Rect.h"
#include "model/Stroke.h"

#include <cstddef>
#include <cstdint>

namespace marlevo {

/// The strokes of a layer: a sequence with value semantics whose copies share all that did not
/// change (a tree of immutable, reference-counted nodes). See StrokeList.cpp for its shape.
class StrokeList;

}  // namespace marlevo
