#include "ui/controls/LastInput.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointer>

namespace marlevo {

namespace {

bool isModifier(int key) {
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt ||
           key == Qt::Key_AltGr || key == Qt::Key_Meta;
}

}  // namespace

LastInput::LastInput() : QObject(QCoreApplication::instance()) {
    parent()->installEventFilter(this);
}

LastInput& LastInput::instance() {
    // Deleted with the application, of which a test has one after the other.
    static QPointer<LastInput> only;
    if (!only) only = new LastInput;
    return *only;
}

bool LastInput::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        if (!isModifier(static_cast<const QKeyEvent&>(*event).key())) wasKey_ = true;
        break;
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
        wasKey_ = false;
        break;
    default:
        break;
    }
    return false;
}

}  // namespace marlevo
