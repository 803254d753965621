#include "platform/NotificationCenter.h"

#include <utility>

namespace marlevo {

NotificationCenter::Observation NotificationCenter::observe(std::string_view name,
                                                            std::function<void()> onPost) {
    std::erase_if(observers_, [](const Observer& observer) { return observer.onPost.expired(); });
    auto observation = std::make_shared<const std::function<void()>>(std::move(onPost));
    observers_.push_back({std::string(name), observation});
    return observation;
}

void NotificationCenter::post(std::string_view name) {
    // A copy, since a call can add observers. The pointers of removed observers are expired.
    const auto observers = observers_;
    for (const Observer& observer : observers)
        if (observer.name == name)
            if (const Observation observation = observer.onPost.lock()) (*observation)();
}

}  // namespace marlevo
