#include "io/Open.h"
#include "io/Save.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/ui/RunningApp.h"

using namespace marlevo;

class OpenWindowsTests : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void eachDrawingGetsAWindowOfItsOwn() {
        writeDrawing("a.marlevo", 1);
        writeDrawing("b\xe4.marlevo", 2);
        writeText(folder_ / "broken.marlevo", "{");
        FakeConsole console;
        MarlevoApp app({.console = &console});
        const std::vector files{folder_ / "a.marlevo", folder_ / "broken.marlevo",
                                folder_ / "b\xe4.marlevo"};
        app.openWindows(files);

        const std::vector<DocumentWindow*> windows = app.documentWindows();
        QCOMPARE(windows.size(), std::size_t(2));
        for (DocumentWindow* const window : windows)
            QVERIFY(!window->content().showNewCanvas());
        QCOMPARE(windows[0]->document().currentFileURL.get(), std::optional(files[0]));
        QCOMPARE(windows[1]->document().currentFileURL.get(), std::optional(files[2]));
        QCOMPARE(strokeCount(windows[0]->document().layers), std::size_t(1));
        QCOMPARE(strokeCount(windows[1]->document().layers), std::size_t(2));
        QTRY_COMPARE(windows[1]->windowTitle(), QString("b\ufffd.marlevo"));
        QCOMPARE(console.lines.size(), std::size_t(1));
        QVERIFY(console.lines.front().starts_with("Load failed: " + files[1].string()));
    }

    void anOpenedDrawingDismissesTheSheetOfItsWindow() {
        writeDrawing("a.marlevo", 1);
        RunningApp s;
        DocumentWindow& other = s.openWindow();
        RunningApp::activate(s.window);
        for (DocumentWindow* const window : {&s.window, &other})
            window->content().setShowNewCanvas(true);
        const auto open = [&](std::optional<std::filesystem::path> file) {
            s.app.openDocument(s.document.services());
            s.panels.answer(std::move(file));
        };
        open(std::nullopt);
        open(folder_ / "missing.marlevo");
        QVERIFY(s.window.content().showNewCanvas());
        open(folder_ / "a.marlevo");
        QVERIFY(!s.window.content().showNewCanvas());
        QVERIFY(other.content().showNewCanvas());
    }

    void withoutAReadableDrawingThereIsAFreshWindow() {
        FakeConsole console;
        MarlevoApp app({.console = &console});
        const std::vector files{folder_ / "missing.marlevo", folder_ / "missing too.marlevo"};
        app.openWindows(files);
        QCOMPARE(app.documentWindows().size(), std::size_t(1));
        QVERIFY(app.documentWindows().front()->content().showNewCanvas());
        QVERIFY(!app.documentWindows().front()->document().currentFileURL.get());
        QCOMPARE(console.lines.size(), std::size_t(2));
    }

    void anEndOfTheProgramSavesWhatHasAFile() {
        writeDrawing("a.marlevo", 1);
        const auto strokesInFile = [&] {
            DrawingDocument copy;
            replacePicture(copy, loadDrawing(folder_ / "a.marlevo", nullptr).value(), {});
            return strokeCount(copy.layers);
        };
        RunningApp s;
        s.openWindow();
        replacePicture(s.document, loadDrawing(folder_ / "a.marlevo", nullptr).value(),
                       folder_ / "a.marlevo");
        QTest::mousePress(&s.window.canvasView(), Qt::LeftButton, {}, {100, 100});
        QTest::mouseMove(&s.window.canvasView(), {150, 150});
        s.preferences.set(preference::autoSaveEnabled, false);
        s.app.saveBeforeEnd();
        QCOMPARE(strokesInFile(), std::size_t(1));
        s.preferences.set(preference::autoSaveEnabled, true);
        s.app.saveBeforeEnd();
        QCOMPARE(strokesInFile(), std::size_t(2));
    }

private:
    void writeDrawing(const std::string& name, int strokes) {
        DrawingDocument document;
        document.ensureLayers();
        for (int i = 0; i < strokes; ++i)
            drawStroke(document);
        writeDocument(document, folder_ / name);
    }

    TemporaryFolder folder_;
};

QTEST_MAIN(OpenWindowsTests)
#include "OpenWindowsTests.moc"
