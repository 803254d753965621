#include "ui/controls/DesktopLook.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

namespace marlevo {

DesktopLook& DesktopLook::instance() {
    static QPointer<DesktopLook> look;
    if (!look) look = new DesktopLook(QCoreApplication::instance());
    return *look;
}

DesktopLook::DesktopLook(QObject* application) : QObject(application) {
    application->installEventFilter(this);
}

bool DesktopLook::eventFilter(QObject* watched, QEvent* event) {
    if (watched != parent()) return false;
    if (event->type() == QEvent::ApplicationFontChange) Q_EMIT fontChanged();
    if (event->type() == QEvent::ApplicationPaletteChange) Q_EMIT paletteChanged();
    return false;
}

}  // namespace marlevo
