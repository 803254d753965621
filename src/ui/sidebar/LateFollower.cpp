#include "ui/sidebar/LateFollower.h"

#include <utility>

namespace marlevo {

LateFollower::LateFollower(ChangeRegistry& registry, std::function<void()> show)
    : show_(std::move(show)), reader_(registry, [this](DocumentProperty) { announce(); }) {
    refresh();
}

void LateFollower::refresh() {
    isAnnounced_ = false;
    reader_.observe(show_);
}

void LateFollower::announce() {
    if (std::exchange(isAnnounced_, true)) return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (isAnnounced_) refresh();
        },
        Qt::QueuedConnection);
}

}  // namespace marlevo
