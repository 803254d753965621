#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace marlevo {

/// The names of the announcements.
namespace notification {

/// Every open window shows its new-canvas sheet.
inline constexpr std::string_view newCanvas = "newCanvas";

}  // namespace notification

/// Announcements by name from one part of the program to any other. Used on the user-interface
/// thread only.
class NotificationCenter {
public:
    /// A registration, which ends with its destruction. It may outlive the centre.
    using Observation = std::shared_ptr<const std::function<void()>>;

    NotificationCenter() = default;
    NotificationCenter(const NotificationCenter&) = delete;
    NotificationCenter& operator=(const NotificationCenter&) = delete;

    /// Calls `onPost` at each post of that name. Observers may be added and removed during a post.
    [[nodiscard]] Observation observe(std::string_view name, std::function<void()> onPost);

    /// Calls the observers of that name before it returns.
    void post(std::string_view name);

private:
    struct Observer {
        std::string name;
        std::weak_ptr<const std::function<void()>> onPost;
    };

    std::vector<Observer> observers_;
};

}  // namespace marlevo
