#include "tests/ui/RunningApp.h"
#include "ui/windows/SettingsWindow.h"

#include <QLineEdit>
#include <QMenuBar>

using namespace marlevo;

namespace {

const QStringList documentCommands{"Save",
                                   "Save As…",
                                   "Print…",
                                   "Export…",
                                   "PNG",
                                   "JPEG",
                                   "TIFF",
                                   "BMP",
                                   "PDF",
                                   "Copy Canvas",
                                   "Clear Active Layer",
                                   "Clear All Layers",
                                   "Toggle Grid",
                                   "Add Layer",
                                   "Delete Active Layer",
                                   "Move Layer Up",
                                   "Move Layer Down"};

}  // namespace

class MenuCommandsTests : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theMenusHaveTheirItemsInOrder() {
        RunningApp s;
        const auto titles = [&](const QMenu& menu) {
            QStringList found;
            for (const QAction* action : menu.actions())
                found << (action->isSeparator() ? QString("-") : action->text());
            return found;
        };
        const QList<QAction*> menus = s.window.menuBar()->actions();
        QCOMPARE(titles(*menus[0]->menu()),
                 QStringList({"New Window", "New Canvas…", "Open…", "-", "Close", "Save",
                              "Save As…", "-", "Print…", "Export…", "-", "Quit"}));
        QCOMPARE(titles(*menus[1]->menu()),
                 QStringList({"Undo", "Redo", "-", "Cut", "Copy", "Paste", "Select All",
                              "Copy Canvas", "-", "Settings…"}));
        QCOMPARE(titles(*menus[2]->menu()),
                 QStringList({"New Canvas…", "-", "Clear Active Layer", "Clear All Layers", "-",
                              "Toggle Grid", "-", "Layers"}));
        QCOMPARE(
            titles(*command(s.window, "Layers").menu()),
            QStringList({"Add Layer", "Delete Active Layer", "Move Layer Up", "Move Layer Down"}));
        QCOMPARE(titles(*command(s.window, "Export…").menu()),
                 QStringList({"PNG", "JPEG", "TIFF", "BMP", "PDF"}));
    }

    void everyShortcutIsThereOnceAndDoesNotRepeat() {
        RunningApp s;
        QHash<QString, QString> commandOf;
        for (const QAction* action : s.window.menuBar()->findChildren<QAction*>()) {
            const QString keys = action->shortcut().toString();
            if (keys.isEmpty()) continue;
            QVERIFY2(!action->autoRepeat(), qPrintable(action->text()));
            if (action->shortcutContext() == Qt::WidgetShortcut) continue;
            QVERIFY2(!commandOf.contains(keys), qPrintable(keys));
            commandOf[keys] = action->text();
        }
        const QList<QPair<QString, QString>> expected{{"Ctrl+N", "New Canvas…"},
                                                      {"Ctrl+O", "Open…"},
                                                      {"Ctrl+S", "Save"},
                                                      {"Ctrl+Shift+S", "Save As…"},
                                                      {"Ctrl+P", "Print…"},
                                                      {"Ctrl+Shift+E", "Export…"},
                                                      {"Ctrl+Shift+C", "Copy Canvas"},
                                                      {"Ctrl+K", "Clear Active Layer"},
                                                      {"Ctrl+G", "Toggle Grid"},
                                                      {"Ctrl+Shift+L", "Add Layer"},
                                                      {"Ctrl+Z", "Undo"},
                                                      {"Ctrl+Shift+Z", "Redo"},
                                                      {"Ctrl+Shift+N", "New Window"},
                                                      {"Ctrl+W", "Close"},
                                                      {"Ctrl+Q", "Quit"},
                                                      {"Ctrl+,", "Settings…"}};
        for (const auto& [keys, title] : expected)
            QCOMPARE(commandOf.value(keys), title);
    }

    void behindTheSheetOnlyTheDocumentsCommandsAreDisabled() {
        RunningApp s;
        drawStroke(s.document);
        drawStroke(s.document);
        s.document.undo();
        const auto expectEnabled = [&](bool enabled) {
            for (const QString& title : documentCommands + QStringList{"Undo", "Redo"})
                QVERIFY2(command(s.window, title).isEnabled() == enabled, qPrintable(title));
            for (const char* title : {"New Canvas…", "Open…", "Layers"})
                QVERIFY(command(s.window, title).isEnabled());
        };
        expectEnabled(true);
        s.window.content().setShowNewCanvas(true);
        expectEnabled(false);
        s.window.content().setShowNewCanvas(false);
        expectEnabled(true);
    }

    void undoAndRedoFollowTheHistory() {
        RunningApp s;
        QAction& undo = command(s.window, "Undo");
        QAction& redo = command(s.window, "Redo");
        QVERIFY(!undo.isEnabled() && !redo.isEnabled());
        drawStroke(s.document);
        QVERIFY(undo.isEnabled() && !redo.isEnabled());
        undo.trigger();
        QVERIFY(!undo.isEnabled() && redo.isEnabled());
    }

    void layerCommandsStopAtTheEndsOfTheStack() {
        RunningApp s;
        command(s.window, "Delete Active Layer").trigger();
        command(s.window, "Move Layer Up").trigger();
        command(s.window, "Move Layer Down").trigger();
        QVERIFY(!s.document.canUndo());

        command(s.window, "Add Layer").trigger();
        command(s.window, "Add Layer").trigger();
        const Uuid top = s.document.layers->back().id;
        command(s.window, "Move Layer Up").trigger();
        QCOMPARE(s.document.activeLayerIndex.get(), 2);
        command(s.window, "Move Layer Down").trigger();
        QCOMPARE(s.document.activeLayerIndex.get(), 1);
        QVERIFY((*s.document.layers)[1].id == top);
        command(s.window, "Delete Active Layer").trigger();
        QCOMPARE(s.document.layers->size(), std::size_t{2});
    }

    void clearingAllLayersAsksNothingAndCanBeUndone() {
        RunningApp s;
        drawStroke(s.document);
        command(s.window, "Add Layer").trigger();
        drawStroke(s.document);
        command(s.window, "Clear All Layers").trigger();
        QCOMPARE(strokeCount(s.document.layers), std::size_t{0});
        command(s.window, "Undo").trigger();
        QCOMPARE(strokeCount(s.document.layers), std::size_t{2});
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
        // A window that the desktop has not given the focus yet.
        DocumentWindow& behind = s.app.openWindow();
        QCOMPARE(s.app.focusedDocument().get(), &second.document());
        const QPointer<DocumentWindow> closing = &second;
        second.close();
        // At once, though the desktop gives the focus later.
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

    void anOpenedDrawingGoesToTheDocumentFocusedThen() {
        RunningApp s;
        command(s.window, "Open…").trigger();
        QCOMPARE(s.panels.open->title, std::string("Open Drawing"));
        s.app.focusedDocument().set(nullptr);
        s.panels.answer("/nowhere/at/all.marlevo");
        QVERIFY(!s.document.currentFileURL->has_value());
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

    void exportProposesTheFormatsName() {
        RunningApp s;
        s.document.canvasSize = {1920.7, 1080};
        command(s.window, "JPEG").trigger();
        QCOMPARE(s.panels.save->title, std::string("Export Drawing"));
        QCOMPARE(s.panels.save->proposedName, std::string("Drawing-1920x1080.jpeg"));
    }
};

QTEST_MAIN(MenuCommandsTests)
#include "MenuCommandsTests.moc"
