#include "platform/qt/QtPreferences.h"

#include <QLocale>

namespace marlevo {

namespace {

constexpr QLatin1String yes("true");
constexpr QLatin1String no("false");

QString qString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

QtPreferences::QtPreferences()
    : settings_(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Marlevo"),
                QStringLiteral("Marlevo")) {
    settings_.setFallbacksEnabled(false);
}

QtPreferences::QtPreferences(const QString& file) : settings_(file, QSettings::IniFormat) {}

std::optional<double> QtPreferences::storedNumber(std::string_view key) const {
    bool isNumber = false;
    const double number = storedText(key).toDouble(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

std::optional<bool> QtPreferences::storedFlag(std::string_view key) const {
    const QString text = storedText(key);
    if (text == yes) return true;
    if (text == no) return false;
    return std::nullopt;
}

void QtPreferences::store(std::string_view key, double value) {
    storeText(key, QString::number(value, 'g', QLocale::FloatingPointShortest));
}

void QtPreferences::store(std::string_view key, bool value) { storeText(key, value ? yes : no); }

QString QtPreferences::storedText(std::string_view key) const {
    settings_.sync();
    return settings_.value(qString(key)).toString();
}

void QtPreferences::storeText(std::string_view key, const QString& text) {
    settings_.setValue(qString(key), text);
    settings_.sync();
}

}  // namespace marlevo
