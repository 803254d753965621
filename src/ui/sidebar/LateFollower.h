#pragma once

#include "model/Observation.h"

#include <QObject>

#include <functional>

namespace marlevo {

/// Like a Follower, but after changes the function runs once, when the current event is over. For
/// views that must not show the steps between, such as a list without the layer that is being
/// moved. The registry must outlive this object.
class LateFollower final : public QObject {
public:
    /// Runs `show` at once.
    LateFollower(ChangeRegistry& registry, std::function<void()> show);

    /// Runs `show` now.
    void refresh();

private:
    void announce();

    std::function<void()> show_;
    bool isAnnounced_ = false;
    Reader reader_;
};

}  // namespace marlevo
