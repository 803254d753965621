#pragma once

#include "model/LayerList.h"

#include <optional>

namespace marlevo {

/// The layers of `after` without their topmost stroke, if that stroke has replaced another one.
/// Takes little time whatever the layers are.
std::optional<LayerList> withoutReplacedTopStroke(const LayerList& before, const LayerList& after);

}  // namespace marlevo
