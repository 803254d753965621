#include "platform/Preferences.h"

#include <utility>

namespace marlevo {

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
    if (differs) tellObservers();
}

Preferences::Observation Preferences::observe(std::function<void()> onChange) {
    std::erase_if(observers_, [](const auto& observer) { return observer.expired(); });
    auto observation = std::make_shared<const std::function<void()>>(std::move(onChange));
    observers_.push_back(observation);
    return observation;
}

void Preferences::tellObservers() {
    // A copy, since observers may come while others are told; those that went are expired.
    const auto observers = observers_;
    for (const auto& observer : observers)
        if (const Observation observation = observer.lock()) (*observation)();
}

}  // namespace marlevo
