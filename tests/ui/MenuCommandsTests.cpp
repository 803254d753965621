#include "tests/ui/RunningApp.h"
#include "ui/windows/SettingsWindow.h"

#include <QLineEdit>
#include <QMenuBar>

using namespace marlevo;

class MenuCommandsTests : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theMenusHaveTheirItemsInOrder() {
        RunningApp s;
        const auto items = [&](const QMenu& menu) {
            QStringList found;
            for (const QAction* action : menu.actions())
                found << (action->isSeparator()
                              ? QString("-")
                              : action->text() + ' ' + action->shortcut().toString())
                             .trimmed();
            return found;
        };
        const QList<QAction*> menus = s.window.menuBar()->actions();
        QCOMPARE(items(*menus[0]->menu()),
                 QStringList({"New Window Ctrl+Shift+N", "New Canvas… Ctrl+N", "Open… Ctrl+O", "-",
                              "Close Ctrl+W", "Save Ctrl+S", "Save As… Ctrl+Shift+S", "-",
                              "Print… Ctrl+P", "Export… Ctrl+Shift+E", "-", "Quit Ctrl+Q"}));
        QCOMPARE(items(*menus[1]->menu()),
                 QStringList({"Undo Ctrl+Z", "Redo Ctrl+Shift+Z", "-", "Cut Ctrl+X", "Copy Ctrl+C",
                              "Paste Ctrl+V", "Select All Ctrl+A", "Copy Canvas Ctrl+Shift+C", "-",
                              "Settings… Ctrl+,"}));
        QCOMPARE(items(*menus[2]->menu()),
                 QStringList({"New Canvas… Ctrl+N", "-", "Clear Active Layer Ctrl+K",
                              "Clear All Layers", "-", "Toggle Grid Ctrl+G", "-", "Layers"}));
        QCOMPARE(items(*command(s.window, "Layers").menu()),
                 QStringList({"Add Layer Ctrl+Shift+L", "Delete Active Layer", "Move Layer Up",
                              "Move Layer Down"}));
        QCOMPARE(items(*command(s.window, "Export…").menu()),
                 QStringList({"PNG", "JPEG", "TIFF", "BMP", "PDF"}));
    }

    void noShortcutIsThereTwiceOrRepeats() {
        RunningApp s;
        QSet<QKeySequence> known;
        for (const QAction* action : s.window.menuBar()->findChildren<QAction*>()) {
            const QKeySequence keys = action->shortcut();
            if (keys.isEmpty()) continue;
            QVERIFY2(!action->autoRepeat(), qPrintable(action->text()));
            if (action->shortcutContext() == Qt::WidgetShortcut) continue;
            QVERIFY2(!known.contains(keys), qPrintable(action->text()));
            known << keys;
        }
    }

    void behindTheSheetOnlyTheDocumentsCommandsAreDisabled() {
        RunningApp s;
        drawStroke(s.document);
        drawStroke(s.document);
        s.document.undo();
        const auto expectEnabled = [&](bool enabled) {
            for (const char* title :
                 {"Save", "Save As…", "Print…", "Export…", "PNG", "JPEG", "TIFF", "BMP", "PDF",
                  "Undo", "Redo", "Copy Canvas", "Clear Active Layer", "Clear All Layers",
                  "Toggle Grid", "Add Layer", "Delete Active Layer", "Move Layer Up",
                  "Move Layer Down"})
                QVERIFY2(command(s.window, title).isEnabled() == enabled, title);
            for (const char* title : {"New Canvas…", "Open…", "Layers"})
                QVERIFY(command(s.window, title).isEnabled());
        };
        expectEnabled(true);
        s.window.content().setShowNewCanvas(true);
        expectEnabled(false);
        s.window.content().setShowNewCanvas(false);
        expectEnabled(true);
    }

    void commandsActOnTheirWindowAndTheFocusedDocumentFollowsTheFocus() {
        RunningApp s;
        DocumentWindow& second = s.openWindow();
        DocumentWindow& third = s.openWindow();
        QCOMPARE(s.app.focusedDocument().get(), &third.document());
        drawStroke(s.document);
        command(s.window, "Toggle Grid").trigger();
        command(s.window, "Undo").trigger();
        QVERIFY(s.document.showGrid && !third.document().showGrid);
        type(third, Qt::Key_Equal, Qt::ControlModifier);
        QCOMPARE(third.document().zoom.get(), 1.2);
        QCOMPARE(s.document.zoom.get(), 1.0);
        QCOMPARE(strokeCount(s.document.layers), qint64{0});

        {
            QDialog panel(&s.window);
            panel.open();
            RunningApp::activate(panel);
            QCOMPARE(s.app.focusedDocument().get(), &s.document);
            QWidget completions(nullptr, Qt::Popup);
            completions.show();
            QVERIFY(QTest::qWaitForWindowExposed(&completions));
            QVERIFY(QTest::qWaitFor([&] { return QGuiApplication::focusWindow() != nullptr; }));
            QCOMPARE(s.app.focusedDocument().get(), &s.document);
        }
        s.app.showSettings();
        QTRY_COMPARE(s.app.focusedDocument().get(), nullptr);
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* settings = qobject_cast<SettingsWindow*>(window)) settings->close();
        RunningApp::activate(second);
        // A window without the focus so far.
        DocumentWindow& behind = s.app.openWindow();
        QCOMPARE(s.app.focusedDocument().get(), &second.document());
        const QPointer<DocumentWindow> closing = &second;
        second.close();
        // At once: the desktop moves the focus later.
        QCOMPARE(s.app.focusedDocument().get(), &s.document);
        s.window.close();
        QCOMPARE(s.app.focusedDocument().get(), &third.document());
        third.close();
        QCOMPARE(s.app.focusedDocument().get(), &behind.document());
        QTRY_VERIFY(!closing);
    }

    void newCanvasReachesEveryWindow() {
        RunningApp s;
        DocumentWindow& second = s.openWindow();
        command(s.window, "New Canvas…").trigger();
        QVERIFY(s.window.content().showNewCanvas() && second.content().showNewCanvas());
    }

    void textFieldCommandsServeTheFieldWithTheKeyboard() {
        RunningApp s;
        QVERIFY(!command(s.window, "Select All").isEnabled());
        QLineEdit field("text", &s.window);
        field.show();
        field.setFocus();
        QVERIFY(command(s.window, "Select All").isEnabled());
        command(s.window, "Select All").trigger();
        command(s.window, "Cut").trigger();
        QCOMPARE(field.text(), QString());
        command(s.window, "Paste").trigger();
        QCOMPARE(field.text(), QString("text"));
    }
};

QTEST_MAIN(MenuCommandsTests)
#include "MenuCommandsTests.moc"
