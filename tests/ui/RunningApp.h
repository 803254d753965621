#pragma once

#include "platform/qt/QtImageCodec.h"
#include "tests/support/FakeServices.h"
#include "tests/ui/MarlevoLook.h"
#include "tools/StrokeCapture.h"
#include "ui/windows/ContentView.h"
#include "ui/windows/DocumentWindow.h"
#include "ui/windows/MarlevoApp.h"

#include <QMenu>
#include <QTest>

namespace marlevo {

/// The application with fake services and one active window without the sheet.
struct RunningApp {
    MarlevoLook look;
    FakeFilePanels panels;
    FakePreferences preferences;
    FakeClock clock;
    QtImageCodec codec;
    MarlevoApp app{{.filePanels = &panels,
                    .imageCodec = &codec,
                    .preferences = &preferences,
                    .sleepingClock = &clock}};
    DocumentWindow& window = openWindow();
    DrawingDocument& document = window.document();

    DocumentWindow& openWindow() {
        DocumentWindow& opened = app.openWindow();
        opened.content().setShowNewCanvas(false);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        activate(opened);
        return opened;
    }

    static void activate(QWidget& window) {
        window.raise();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window)) qFatal("no active window");
    }
};

inline void drawStroke(DrawingDocument& document) {
    beginStroke(document, {10, 10});
    addPointToStroke(document, {90, 70});
    endStroke(document);
}

/// A press and release of a key as a keyboard sends them, through the window.
inline void type(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::qWait(2);  // a press at the very time of the last release would be a repeat
    QTest::keyClick(window.windowHandle(), key, modifiers);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
}

/// The command with this title in the window's menus.
inline QAction& command(QWidget& window, const QString& title) {
    for (QAction* action : window.findChildren<QAction*>())
        if (action->text() == title) return *action;
    qFatal("no command %s", qPrintable(title));
}

template <typename Control>
Control& control(QWidget& window, const QString& name) {
    for (auto* candidate : window.findChildren<Control*>())
        if (candidate->accessibleName() == name) return *candidate;
    qFatal("no control %s", qPrintable(name));
}

/// The button with this text, in which the mark of a letter does not count.
template <typename Button>
Button& button(QWidget& window, const QString& text) {
    for (auto* candidate : window.findChildren<Button*>())
        if (candidate->text().remove('&') == text) return *candidate;
    qFatal("no button %s", qPrintable(text));
}

}  // namespace marlevo
