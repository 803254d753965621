#pragma once

#include "platform/Preferences.h"

#include <QSettings>

namespace marlevo {

/// The user's settings in an INI file, by default Marlevo/Marlevo.ini in the user's folder for
/// settings. Changes are written at once. Changes by other processes are read, too.
class QtPreferences final : public Preferences {
public:
    QtPreferences();
    explicit QtPreferences(const QString& file);

protected:
    std::optional<double> storedNumber(std::string_view key) const override;
    std::optional<bool> storedFlag(std::string_view key) const override;
    void store(std::string_view key, double value) override;
    void store(std::string_view key, bool value) override;

private:
    QString storedText(std::string_view key) const;
    void storeText(std::string_view key, const QString& text);

    mutable QSettings settings_;  // mutable: a getter reads the file again
};

}  // namespace marlevo
