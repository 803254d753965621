#include "ui/controls/AppearanceNotifier.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

namespace marlevo {

AppearanceNotifier& AppearanceNotifier::instance() {
    static QPointer<AppearanceNotifier> notifier;
    if (!notifier) notifier = new AppearanceNotifier(QCoreApplication::instance());
    return *notifier;
}

AppearanceNotifier::AppearanceNotifier(QObject* application) : QObject(application) {
    application->installEventFilter(this);
}

bool AppearanceNotifier::eventFilter(QObject* watched, QEvent* event) {
    if (watched != parent()) return false;
    if (event->type() == QEvent::ApplicationFontChange) Q_EMIT fontChanged();
    if (event->type() == QEvent::ApplicationPaletteChange) Q_EMIT paletteChanged();
    return false;
}

}  // namespace marlevo
