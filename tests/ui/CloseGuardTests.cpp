#include "tests/support/TemporaryFolder.h"
#include "tests/ui/RunningApp.h"

#include <QDialogButtonBox>
#include <QImage>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QProxyStyle>
#include <QPushButton>

#include <memory>

using namespace marlevo;

namespace {

QMessageBox* alertOf(QWidget& window) { return window.findChild<QMessageBox*>(); }

void answer(QWidget& window, const QString& title) {
    button<QPushButton>(*alertOf(window), title).click();
}

/// A desktop with this order of buttons.
class DesktopOrder : public QProxyStyle {
public:
    explicit DesktopOrder(QDialogButtonBox::ButtonLayout order)
        : QProxyStyle(new MarlevoStyle), order_(order) {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        return hint == SH_DialogButtonLayout
                   ? int(order_)
                   : QProxyStyle::styleHint(hint, option, widget, returned);
    }

private:
    QDialogButtonBox::ButtonLayout order_;
};

/// Whether the button is on the right of "Cancel".
bool isBehindCancel(QWidget& window, const QString& title) {
    const auto left = [&](const QString& text) {
        return button<QPushButton>(window, text).mapToGlobal(QPoint()).x();
    };
    return left(title) > left("Cancel");
}

}  // namespace

class CloseGuardTests : public QObject {
    Q_OBJECT

    struct Setting : RunningApp {
        QPointer<DocumentWindow> open = &window;

        Setting() { QCoreApplication::processEvents(); }

        void drawAndClose() {
            drawStroke(document);
            window.close();
        }
    };

private Q_SLOTS:
    void aDrawingWithoutStrokesClosesWithoutAQuestion() {
        Setting s;
        drawStroke(s.document);
        s.document.clearAll();
        QVERIFY(s.window.close());
        QTRY_VERIFY(!s.open);
        QVERIFY(!s.app.focusedDocument().get());
    }

    void theAlertNamesTheFileAndTheLoss() {
        Setting s;
        s.document.currentFileURL = "/tmp/saved.marlevo";
        drawStroke(s.document);
        s.document.toggleLayerVisibility(0);
        QCoreApplication::processEvents();
        s.window.close();
        QMessageBox& alert = *alertOf(s.window);
        QCOMPARE(alert.text(), QString("Do you want to save your drawing?"));
        QCOMPARE(alert.informativeText(), QString("Your drawing will be lost if you don't save."));
        QCOMPARE(alert.icon(), QMessageBox::Warning);
        QCOMPARE(alert.windowModality(), Qt::ApplicationModal);
        QCOMPARE(alert.defaultButton()->text(), QString("&Save"));
        QVERIFY(s.window.isVisible());
        QCOMPARE(alert.windowTitle(), QString("saved.marlevo"));
        QVERIFY(alert.findChild<QLabel*>("qt_msgbox_label")->font().bold());
        const QLabel& informative = *alert.findChild<QLabel*>("qt_msgbox_informativelabel");
        QVERIFY(informative.width() >
                informative.fontMetrics().horizontalAdvance(informative.text()));
    }

    void theButtonsHaveOneOrderAndLetters() {
        for (const auto order : {QDialogButtonBox::WinLayout, QDialogButtonBox::GnomeLayout}) {
            Setting s;
            QApplication::setStyle(new DesktopOrder(order));
            s.window.content().setShowNewCanvas(true);
            QTRY_COMPARE(isBehindCancel(s.window, "Create Canvas"),
                         order == QDialogButtonBox::GnomeLayout);
            s.window.content().setShowNewCanvas(false);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            s.drawAndClose();
            QTRY_COMPARE(isBehindCancel(*alertOf(s.window), "Save"),
                         order == QDialogButtonBox::GnomeLayout);
            RunningApp::activate(*alertOf(s.window));
            QTest::keyClick(alertOf(s.window)->windowHandle(), Qt::Key_D, Qt::AltModifier);
            QTRY_VERIFY(!s.open);
        }
        const std::unique_ptr<const QStyle> withoutDesktop = std::make_unique<MarlevoStyle>();
        QCOMPARE(withoutDesktop->styleHint(QStyle::SH_DialogButtonLayout),
                 int(QDialogButtonBox::GnomeLayout));
    }

    void cancelAndDismissalKeepTheWindowAndAskAgain() {
        Setting s;
        s.drawAndClose();
        answer(s.window, "Cancel");
        QTRY_VERIFY(!alertOf(s.window));
        s.window.close();
        QTest::keyClick(alertOf(s.window), Qt::Key_Escape);
        QTRY_VERIFY(!alertOf(s.window));
        s.window.close();
        alertOf(s.window)->close();
        QTRY_VERIFY(!alertOf(s.window));
        QVERIFY(s.open && s.window.isVisible());
        QVERIFY(!s.window.content().closeGuard().shouldSkipClose());
    }

    void theSessionsEndAsksForDrawingsWithoutAFile() {
        Setting s;
        const TemporaryFolder folder;
        s.preferences.set(preference::autoSaveEnabled, true);
        drawStroke(s.document);
        DocumentWindow& saved = s.openWindow();
        drawStroke(saved.document());
        saved.document().currentFileURL = folder / "saved.marlevo";
        const auto mayEnd = [&](const char* title) {
            QMetaObject::invokeMethod(
                &saved, [&s, title] { answer(s.window, title); }, Qt::QueuedConnection);
            s.app.saveBeforeEnd();
            return s.app.closeUnsavedDrawings();
        };
        QVERIFY(!mayEnd("Cancel"));
        s.window.close();  // its question stays open
        QVERIFY(s.open);
        QVERIFY(mayEnd("Don't Save"));
        QTRY_VERIFY(!s.open);
        QVERIFY(saved.isVisible());

        QPointer<DocumentWindow> open = &saved;
        QEvent quit(QEvent::Quit);
        QCoreApplication::sendEvent(qApp, &quit);
        QTRY_VERIFY(!open);
        QVERIFY(std::filesystem::exists(folder / "saved.marlevo"));
    }

    void saveWritesThePictureThenCloses() {
        Setting s;
        const TemporaryFolder folder;
        s.document.canvasSize = {120.7, 80};
        s.drawAndClose();
        answer(s.window, "Save");
        QVERIFY(s.open && s.window.isVisible());
        QVERIFY(s.window.content().closeGuard().shouldSkipClose());
        QCOMPARE(s.panels.save->title, std::string("Save Drawing"));
        QCOMPARE(s.panels.save->proposedName, std::string("Drawing-120x80.png"));
        QCOMPARE(s.panels.save->fileType.extensions, std::vector<std::string>{"png"});
        s.panels.answer(folder / "picture.png");
        QTRY_VERIFY(!s.open);
        QCOMPARE(QImage(QString::fromStdString((folder / "picture.png").string())).size(),
                 QSize(120, 80));
    }

    void quitStopsAtTheFirstWindowThatIsKept() {
        Setting s;
        drawStroke(s.document);
        QPointer<DocumentWindow> empty = &s.openWindow();
        QPointer<DocumentWindow> kept = &s.openWindow();
        drawStroke(kept->document());
        QCoreApplication::processEvents();
        RunningApp::activate(*empty);
        s.app.quit();
        QTRY_VERIFY(!empty);
        QTRY_VERIFY(alertOf(*kept));
        QVERIFY(!alertOf(s.window));
        answer(*kept, "Cancel");
        QTRY_VERIFY(!alertOf(*kept));
        QVERIFY(kept && !alertOf(s.window));
        kept->close();
        answer(*kept, "Don't Save");
        QTRY_VERIFY(!kept);
        QVERIFY2(s.open && !alertOf(s.window), "closing one window later does not quit");
    }

    void quitContinuesAfterAPictureWasSaved() {
        Setting s;
        drawStroke(s.document);
        QPointer<DocumentWindow> front = &s.openWindow();
        drawStroke(front->document());
        QCoreApplication::processEvents();
        s.app.quit();
        answer(*front, "Save");
        QVERIFY(!alertOf(s.window));
        s.panels.answer(std::nullopt);
        QTRY_VERIFY(!front);
        QTRY_VERIFY(alertOf(s.window));
        answer(s.window, "Don't Save");
        QTRY_VERIFY(!s.open);
    }

    void theTitleFollowsTheFileAfterTheEvent() {
        Setting s;
        QCOMPARE(s.window.windowTitle(), QString("Marlevo"));
        s.document.currentFileURL = "/some/where/sketch[*].marlevo";
        QCOMPARE(s.window.windowTitle(), QString("Marlevo"));
        QCoreApplication::processEvents();
        QCOMPARE(s.window.windowHandle()->title(), QString("sketch[*].marlevo"));
    }

    void autoSaveEndsWithTheWindow() {
        Setting s;
        QCOMPARE(s.clock.sleepers(), std::size_t{1});
        s.window.hide();
        s.window.show();
        QCOMPARE(s.clock.sleepers(), std::size_t{1});
        s.window.close();
        QTRY_VERIFY(!s.open);
        QCOMPARE(s.clock.sleepers(), std::size_t{0});
    }
};

QTEST_MAIN(CloseGuardTests)
#include "CloseGuardTests.moc"
