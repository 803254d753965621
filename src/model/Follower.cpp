#include "model/Follower.h"

#include <utility>

namespace marlevo {

Follower::Follower(ChangeRegistry& registry, std::function<void()> show)
    : show_(std::move(show)), reader_(registry, [this](DocumentProperty) { refresh(); }) {
    refresh();
}

}  // namespace marlevo
