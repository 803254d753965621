#pragma once

#include "model/ImageCache.h"
#include "tests/support/ManualQueue.h"
#include "tests/ui/RunningApp.h"
#include "ui/controls/DisclosureSection.h"
#include "ui/sidebar/SidebarView.h"

#include <QApplication>
#include <QVBoxLayout>

namespace marlevo {

/// A sidebar in a window of its own, beside a field with the focus.
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

    /// The control of a type with an accessible name.
    template <typename Control = QAbstractButton>
    Control& get(const QString& name) {
        return control<Control>(window, name);
    }

    void click(const QString& name) {
        QTest::mouseClick(&get(name), Qt::LeftButton);
        showChanges();
    }

    /// Updates the list of layers.
    static void showChanges() { QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall); }

    /// Presses a key in the focused widget.
    static void type(Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key);
        showChanges();
    }

    static QString focused() { return QApplication::focusWidget()->accessibleName(); }

    /// Opens the list of layers and waits for the end of the animation.
    void openLayers() {
        click("Layers");
        QWidget* content = &get("Add layer");
        while (!qobject_cast<DisclosureSection*>(content->parentWidget()->parentWidget()))
            content = content->parentWidget();
        const auto isOpen = [&] { return content->parentWidget()->height() == content->height(); };
        if (!QTest::qWaitFor(isOpen)) qFatal("not open");
    }
};

}  // namespace marlevo
