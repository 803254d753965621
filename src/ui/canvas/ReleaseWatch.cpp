#include "ui/canvas/ReleaseWatch.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <utility>

namespace marlevo {

ReleaseWatch::ReleaseWatch(const QWidget& widget, std::function<void()> onLost)
    : widget_(widget), onLost_(std::move(onLost)) {}

void ReleaseWatch::start() { qApp->installEventFilter(this); }

void ReleaseWatch::stop() { qApp->removeEventFilter(this); }

bool ReleaseWatch::eventFilter(QObject* watched, QEvent* event) {
    if (takesRelease(watched, *event)) {
        stop();
        onLost_();
    }
    return false;
}

bool ReleaseWatch::takesRelease(const QObject* watched, const QEvent& event) const {
    if (event.type() == QEvent::WindowBlocked) return watched == widget_.window();
    if (event.type() != QEvent::Show) return false;
    const auto* const shown = qobject_cast<const QWidget*>(watched);
    return shown != nullptr && shown->windowType() == Qt::Popup;
}

}  // namespace marlevo
