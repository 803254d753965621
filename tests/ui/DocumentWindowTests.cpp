#include "platform/qt/QtImageCodec.h"
#include "ui/DocumentWindow.h"

#include <QImage>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>

using namespace marlevo;

namespace {

/// Answers each request with a file given beforehand.
class FakePanels : public FilePanels {
public:
    SavePanelRequest request;
    std::optional<std::filesystem::path> answer;

    void showSavePanel(const SavePanelRequest& asked, Completion completion) override {
        request = asked;
        completion(answer);
    }
};

void draw(DrawingDocument& document) {
    document.beginStroke({10, 10});
    document.addPointToStroke({90, 70});
    document.endStroke();
}

QAction& command(DocumentWindow& window, const QString& title) {
    for (QAction* action : window.findChildren<QAction*>())
        if (action->text() == title) return *action;
    qFatal("no command %s", qPrintable(title));
}

template <typename Control>
Control& control(DocumentWindow& window, const QString& name) {
    for (auto* candidate : window.findChildren<Control*>())
        if (candidate->accessibleName() == name) return *candidate;
    qFatal("no control %s", qPrintable(name));
}

}  // namespace

class DocumentWindowTests : public QObject {
    Q_OBJECT

    struct Setting {
        FakePanels panels;
        QtImageCodec codec;
        DocumentWindow window{Services{.filePanels = &panels, .imageCodec = &codec}};
        DrawingDocument& document = window.document();

        Setting() {
            window.show();
            window.activateWindow();
            if (!QTest::qWaitForWindowActive(&window)) qFatal("no active window");
        }
    };

private Q_SLOTS:
    void undoAndRedoFollowTheHistoryAndTheKeyboard() {
        Setting s;
        QCOMPARE(s.document.layers->size(), std::size_t{1});
        QVERIFY(!command(s.window, "Undo").isEnabled());
        draw(s.document);
        QVERIFY(command(s.window, "Undo").isEnabled());
        QTest::keyClick(s.window.windowHandle(), Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(s.document.layers->front().strokes.isEmpty());
        QVERIFY(!command(s.window, "Undo").isEnabled());
        QVERIFY(command(s.window, "Redo").isEnabled());
        QTest::keyClick(s.window.windowHandle(), Qt::Key_Z,
                        Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(s.document.layers->front().strokes.size(), std::size_t{1});
        QVERIFY(!command(s.window, "Redo").isEnabled());
    }

    void commandsRunOnceWhileTheirKeyIsHeld() {
        Setting s;
        for (const QAction* action : s.window.menuBar()->findChildren<QAction*>())
            QVERIFY2(action->shortcut().isEmpty() || !action->autoRepeat(),
                     qPrintable(action->text()));
    }

    void layerCommandsStopAtTheEndsOfTheStack() {
        Setting s;
        command(s.window, "Delete Active Layer").trigger();
        command(s.window, "Move Layer Up").trigger();
        command(s.window, "Move Layer Down").trigger();
        QVERIFY(!s.document.canUndo());

        command(s.window, "Add Layer").trigger();
        command(s.window, "Add Layer").trigger();
        QCOMPARE(s.document.activeLayerIndex.get(), 2);
        const Uuid top = s.document.layers->back().id;
        command(s.window, "Move Layer Up").trigger();
        QCOMPARE(s.document.activeLayerIndex.get(), 2);
        command(s.window, "Move Layer Down").trigger();
        QCOMPARE(s.document.activeLayerIndex.get(), 1);
        QVERIFY((*s.document.layers)[1].id == top);
        command(s.window, "Delete Active Layer").trigger();
        QCOMPARE(s.document.layers->size(), std::size_t{2});
    }

    void theZoomFollowsItsSlider() {
        Setting s;
        control<QSlider>(s.window, "Zoom").setValue(250);
        QCOMPARE(s.document.zoom.get(), 2.5);
    }

    void exportWritesThePictureAsPng() {
        Setting s;
        QTemporaryDir folder;
        s.panels.answer = folder.filePath("picture.png").toStdString();
        s.document.canvasSize = {120.7, 80.2};
        s.document.backgroundIsTransparent = true;
        s.document.brushOpacity = 0.5;
        draw(s.document);
        command(s.window, "PNG").trigger();
        QCOMPARE(s.panels.request.title, std::string("Export Drawing"));
        QCOMPARE(s.panels.request.proposedName, std::string("Drawing-120x80.png"));

        const QImage written(QString::fromStdString(s.panels.answer->string()));
        QCOMPARE(written.size(), QSize(120, 80));
        QCOMPARE(qAlpha(written.pixel(50, 40)), 128);
        QCOMPARE(qAlpha(written.pixel(100, 10)), 0);
    }
};

QTEST_MAIN(DocumentWindowTests)
#include "DocumentWindowTests.moc"
