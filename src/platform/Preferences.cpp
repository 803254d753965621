#include "platform/Preferences.h"

#include <utility>

namespace marlevo {

namespace {

constexpr std::string_view changed = "changed";

}  // namespace

double Preferences::get(const Preference<double>& preference) const {
    return storedNumber(preference.key).value_or(preference.initial);
}

bool Preferences::get(const Preference<bool>& preference) const {
    return storedFlag(preference.key).value_or(preference.initial);
}

void Preferences::set(const Preference<double>& preference, double value) {
    change(preference, value);
}

void Preferences::set(const Preference<bool>& preference, bool value) { change(preference, value); }

template <typename T>
void Preferences::change(const Preference<T>& preference, T value) {
    const bool differs = get(preference) != value;
    store(preference.key, value);
    if (differs) changes_.post(changed);
}

Preferences::Observation Preferences::observe(std::function<void()> onChange) {
    return changes_.observe(changed, std::move(onChange));
}

}  // namespace marlevo
