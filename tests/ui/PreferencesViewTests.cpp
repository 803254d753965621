#include "tests/ui/RunningApp.h"
#include "ui/windows/PreferencesView.h"

using namespace marlevo;

class PreferencesViewTests : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void numbersAreStoredWhenTheyAreEntered() {
        FakePreferences preferences;
        std::vector<double> stored;
        const auto changes = preferences.observe(
            [&] { stored.push_back(preferences.get(preference::defaultCanvasWidth)); });
        PreferencesView view(preferences);
        view.show();
        RunningApp::activate(view);
        auto& field = control<NumberField>(view, "Default width");
        auto& other = control<NumberField>(view, "Default height");
        QCOMPARE(field.text(), QString("1280"));
        const auto type = [&](const char* text) {
            field.setFocus();
            field.selectAll();
            QTest::keyClicks(&field, text);
        };
        type("1200");
        QVERIFY(stored.empty());
        QTest::keyClick(&field, Qt::Key_Return);
        type("-3");
        other.setFocus();
        type("800.5");
        preferences.set(preference::autoSaveEnabled, false);
        QCOMPARE(field.text(), QString("800.5"));
        view.close();
        QCOMPARE(stored, (std::vector<double>{1200, -3, -3, 800.5}));

        view.show();
        RunningApp::activate(view);
        for (const char* text : {"12abc", "800,5", "inf", "nan", ""}) {
            type(text);
            other.setFocus();
            QCOMPARE(field.text(), QString("800.5"));
        }
        type("12");
        QTest::keyClick(&field, Qt::Key_Escape);
        QCOMPARE(field.text(), QString("800.5"));
        view.close();
        QCOMPARE(stored.size(), std::size_t(4));
    }

    void escapeDiscardsAnEditAndThenClosesTheWindow() {
        RunningApp s;
        s.app.showSettings();
        QWidget* settings = nullptr;
        for (QWidget* const window : QApplication::topLevelWidgets())
            if (window->windowTitle() == "Settings") settings = window;
        QVERIFY(settings);
        RunningApp::activate(*settings);
        auto& field = control<NumberField>(*settings, "Default width");
        field.setFocus();
        QTest::keyClicks(&field, "5");
        QTest::keyClick(&field, Qt::Key_Escape);
        QVERIFY(settings->isVisible());
        QTest::keyClick(&field, Qt::Key_Escape);
        QVERIFY(!settings->isVisible());
        QCOMPARE(s.preferences.get(preference::defaultCanvasWidth), 1280.0);
    }

    void aNumberTypedLastIsStoredAtTheProgramsEnd() {
        RunningApp s;
        s.app.showSettings();
        for (QWidget* const window : QApplication::topLevelWidgets())
            if (window->isVisible() && window->windowTitle() == "Settings")
                control<NumberField>(*window, "Default width").setText("640");
        s.app.quit();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(s.preferences.get(preference::defaultCanvasWidth), 640.0);
    }

    void numbersAreReadAsTheLocaleWritesThem() {
        FakePreferences preferences;
        PreferencesView view(preferences);
        view.setLocale(QLocale(QLocale::German));
        view.show();
        RunningApp::activate(view);
        preferences.set(preference::defaultCanvasHeight, 1080.25);
        auto& field = control<NumberField>(view, "Default height");
        QCOMPARE(field.text(), QString("1080,25"));
        field.setText("600,5");
        view.close();
        QCOMPARE(preferences.get(preference::defaultCanvasHeight), 600.5);
    }

    void theSwitchFollowsAndSetsAutoSave() {
        FakePreferences preferences;
        PreferencesView view(preferences);
        auto& autoSave = button<Switch>(view, "Auto-save every 30 seconds");
        QVERIFY(autoSave.isChecked());
        autoSave.click();
        QVERIFY(!preferences.get(preference::autoSaveEnabled));
        preferences.set(preference::autoSaveEnabled, true);
        QVERIFY(autoSave.isChecked());
        QVERIFY(view.sizeHint().width() >= 380 && view.sizeHint().height() >= 200);
    }
};

QTEST_MAIN(PreferencesViewTests)
#include "PreferencesViewTests.moc"
