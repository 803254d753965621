#include "platform/qt/DesktopSettings.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QPointer>

#include <utility>

namespace marlevo {

namespace {

// The interface org.freedesktop.portal.Settings. All desktops with a portal offer GNOME's group of
// settings, too.
const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");

struct Setting {
    QString group;
    QString key;
    friend bool operator==(const Setting&, const Setting&) = default;
};

const Setting motion{QStringLiteral("org.gnome.desktop.interface"),
                     QStringLiteral("enable-animations")};
const Setting scheme{QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme")};

/// The value inside the variant. Some portals wrap it in two variants instead of one.
QVariant unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

DesktopSettings::ColorScheme colorSchemeOf(uint code) {
    using enum DesktopSettings::ColorScheme;
    return code == 1 ? dark : code == 2 ? light : any;
}

}  // namespace

DesktopSettings& DesktopSettings::instance() {
    static QPointer<DesktopSettings> settings;
    if (!settings) settings = new DesktopSettings(QCoreApplication::instance());
    return *settings;
}

DesktopSettings::DesktopSettings(QObject* parent) : QObject(parent) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return;
    bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QDBusMessage)));
    ask(motion.group, motion.key);
    ask(scheme.group, scheme.key);
}

void DesktopSettings::ask(const QString& group, const QString& key) {
    QDBusMessage read =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    read << group << key;
    auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(read), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, group, key] {
        const QDBusMessage reply = answer->reply();
        if (!answer->isError()) take(group, key, reply.arguments().value(0));
        answer->deleteLater();
    });
}

void DesktopSettings::settingChanged(const QDBusMessage& message) {
    const QVariantList arguments = message.arguments();
    if (arguments.size() == 3) take(arguments[0].toString(), arguments[1].toString(), arguments[2]);
}

void DesktopSettings::take(const QString& group, const QString& key, const QVariant& value) {
    const QVariant wanted = unwrapped(value);
    if (Setting{group, key} == motion && wanted.typeId() == QMetaType::Bool)
        isMotionWanted_ = wanted.toBool();
    if (Setting{group, key} == scheme && wanted.typeId() == QMetaType::UInt) {
        const ColorScheme before = std::exchange(colorScheme_, colorSchemeOf(wanted.toUInt()));
        if (colorScheme_ != before) Q_EMIT colorSchemeChanged();
    }
}

}  // namespace marlevo
