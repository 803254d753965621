#pragma once

#include "platform/NotificationCenter.h"

#include <functional>
#include <optional>
#include <string_view>

namespace marlevo {

/// A setting of the user: its key in the store, and its value until the user changes it. The
/// initial value is not written to the store.
template <typename T>
struct Preference {
    std::string_view key;
    T initial;
};

namespace preference {

/// Canvas pixels; any number, also 0, negative or fractional.
inline constexpr Preference<double> defaultCanvasWidth{"defaultCanvasWidth", 1280};
inline constexpr Preference<double> defaultCanvasHeight{"defaultCanvasHeight", 720};
inline constexpr Preference<bool> autoSaveEnabled{"autoSaveEnabled", true};

}  // namespace preference

/// The user's settings, stored across runs of the program. Used on the user-interface thread only.
class Preferences {
public:
    /// A registration for changes, which ends with its destruction. It may outlive the preferences.
    using Observation = NotificationCenter::Observation;

    Preferences() = default;
    virtual ~Preferences() = default;
    Preferences(const Preferences&) = delete;
    Preferences& operator=(const Preferences&) = delete;

    /// The value in the store. The initial value if the store has none, has one of another type, or
    /// cannot be read.
    double get(const Preference<double>& preference) const;
    bool get(const Preference<bool>& preference) const;

    /// Stores the value at once. It holds for this run even if the store cannot be written. Values
    /// are not checked. Observers are called if the value differs from before.
    void set(const Preference<double>& preference, double value);
    void set(const Preference<bool>& preference, bool value);

    /// Calls `onChange` after each change. Observers may read and set preferences, and observers
    /// may be added and removed, during a call.
    [[nodiscard]] Observation observe(std::function<void()> onChange);

protected:
    virtual std::optional<double> storedNumber(std::string_view key) const = 0;
    virtual std::optional<bool> storedFlag(std::string_view key) const = 0;
    virtual void store(std::string_view key, double value) = 0;
    virtual void store(std::string_view key, bool value) = 0;

private:
    template <typename T>
    void change(const Preference<T>& preference, T value);

    NotificationCenter changes_;
};

}  // namespace marlevo
