#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace marlevo {

/// What one part of the program announces to whoever wants to hear it.
namespace notification {

/// Every open window shows its new-canvas sheet.
inline constexpr std::string_view newCanvas = "newCanvas";

}  // namespace notification

/// Passes announcements on by name. Used on the user-interface thread only.
class NotificationCenter {
public:
    /// A registration, which ends when it is dropped; it may outlive the centre.
    using Observation = std::shared_ptr<const std::function<void()>>;

    NotificationCenter() = default;
    NotificationCenter(const NotificationCenter&) = delete;
    NotificationCenter& operator=(const NotificationCenter&) = delete;

    /// Calls `onPost` at each post of that name. Observers may come and go while they are told.
    [[nodiscard]] Observation observe(std::string_view name, std::function<void()> onPost);

    /// Tells the observers of that name before it returns.
    void post(std::string_view name);

private:
    struct Observer {
        std::string name;
        std::weak_ptr<const std::function<void()>> onPost;
    };

    std::vector<Observer> observers_;
};

}  // namespace marlevo
