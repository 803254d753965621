#pragma once

#include "model/ImageCache.h"
#include "tests/support/FakeServices.h"
#include "tests/support/ManualQueue.h"
#include "tests/ui/MarlevoLook.h"
#include "ui/sidebar/SidebarView.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <QVBoxLayout>

#include <cstdlib>

namespace marlevo {

/// A sidebar in a window of its own, beside a field that has the keyboard.
struct SidebarSetting {
    MarlevoLook look;
    FakeFilePanels panels;
    ManualMainQueue mainQueue;
    ManualBackgroundQueue backgroundQueue;
    DrawingDocument document{Services{
        .mainQueue = &mainQueue, .filePanels = &panels, .backgroundQueue = &backgroundQueue}};
    ImageCache images{nullptr};
    QWidget window;
    SidebarView* sidebar = new SidebarView(document, images);
    QWidget* field = new QWidget;

    SidebarSetting() {
        document.ensureLayers();
        auto* row = new QHBoxLayout(&window);
        row->addWidget(sidebar);
        row->addWidget(field, 1);
        field->setFocusPolicy(Qt::StrongFocus);
        window.resize(700, 900);
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window)) qFatal("no active window");
        field->setFocus();
    }

    /// The control of a type with an accessible name; null when there is none.
    template <typename Control>
    Control* find(const QString& name) {
        for (auto* candidate : window.findChildren<Control*>())
            if (candidate->accessibleName() == name) return candidate;
        return nullptr;
    }

    template <typename Control = QAbstractButton>
    Control& get(const QString& name) {
        if (auto* control = find<Control>(name)) return *control;
        qFatal("no control %s", qPrintable(name));
    }

    void click(const QString& name) {
        QTest::mouseClick(&get(name), Qt::LeftButton);
        showChanges();
    }

    /// Lets the list of layers show what has changed.
    static void showChanges() { QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall); }

    /// Presses a key in the focused widget.
    static void type(Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key);
        showChanges();
    }

    static QString focused() { return QApplication::focusWidget()->accessibleName(); }

    /// Opens the list of layers and waits until it has come to rest.
    void openLayers() {
        click("Layers");
        auto& add = get("Add layer");
        if (!QTest::qWaitFor([&] { return !add.visibleRegion().isEmpty(); })) qFatal("not open");
        QTest::qWait(200);
    }
};

}  // namespace marlevo
