#include "tests/ui/RunningApp.h"
#include "ui/windows/PreferencesView.h"

using namespace marlevo;

class PreferencesViewTests : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void numbersAreStoredAsTheyAreTyped() {
        FakePreferences preferences;
        PreferencesView view(preferences);
        view.show();
        RunningApp::activate(view);
        auto& field = control<NumberField>(view, "Default width");
        QCOMPARE(field.text(), QString("1280"));
        const auto stored = [&](const char* text) {
            field.setFocus();
            field.selectAll();
            QTest::keyClicks(&field, text);
            return preferences.get(preference::defaultCanvasWidth);
        };
        QCOMPARE(stored("0"), 0.0);
        QCOMPARE(stored("-3"), -3.0);
        QCOMPARE(stored("800.5"), 800.5);
        QCOMPARE(stored("nan"), 800.5);
        QCOMPARE(field.text(), QString("nan"));
        control<NumberField>(view, "Default height").setFocus();
        QCOMPARE(field.text(), QString("800.5"));
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
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, "600,5");
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
