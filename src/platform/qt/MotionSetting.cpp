#include "platform/qt/MotionSetting.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QPointer>

namespace marlevo {

namespace {

// The settings of org.freedesktop.portal.Settings, of which every desktop with a portal passes on
// the group of GNOME.
const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString settingGroup = QStringLiteral("org.gnome.desktop.interface");
const QString settingKey = QStringLiteral("enable-animations");

/// The value itself: some portals wrap it in one variant more than they need to.
QVariant unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

}  // namespace

MotionSetting& MotionSetting::instance() {
    static QPointer<MotionSetting> setting;
    if (!setting) setting = new MotionSetting(QCoreApplication::instance());
    return *setting;
}

MotionSetting::MotionSetting(QObject* parent) : QObject(parent) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return;
    bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));

    QDBusMessage read =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    read << settingGroup << settingKey;
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(read), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (!reply.isError()) settingChanged(settingGroup, settingKey, reply.value());
        answer->deleteLater();
    });
}

void MotionSetting::settingChanged(const QString& group, const QString& key,
                                   const QDBusVariant& value) {
    if (group != settingGroup || key != settingKey) return;
    const QVariant wanted = unwrapped(value.variant());
    if (wanted.typeId() == QMetaType::Bool) isWanted_ = wanted.toBool();
}

}  // namespace marlevo
