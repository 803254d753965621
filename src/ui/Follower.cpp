#include "ui/Follower.h"

#include <utility>

namespace marlevo {

Follower::Follower(DrawingDocument& document, std::function<void()> show)
    : show_(std::move(show)),
      reader_(document.changeRegistry(), [this](DocumentProperty) { refresh(); }) {
    refresh();
}

}  // namespace marlevo
