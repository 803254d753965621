#include "platform/qt/QtPreferences.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace marlevo;

class QtPreferencesTests : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;

    QString file(const QByteArray& contents) const {
        const QString name = folder_.filePath("settings.ini");
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly) || file.write(contents) < 0) qFatal("cannot write");
        return name;
    }

    static bool isInitial(const Preferences& preferences) {
        return preferences.get(preference::defaultCanvasWidth) == 1280 &&
               preferences.get(preference::defaultCanvasHeight) == 720 &&
               preferences.get(preference::autoSaveEnabled);
    }

private Q_SLOTS:
    void onlyWhatTheUserChangedIsWritten() {
        const QString name = folder_.filePath("fresh/settings.ini");
        QtPreferences preferences(name);
        QVERIFY(isInitial(preferences));
        QVERIFY(!QFile::exists(name));
        preferences.set(preference::autoSaveEnabled, false);
        QFile file(name);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        QVERIFY(text.contains("autoSaveEnabled=false"));
        QVERIFY(!text.contains("defaultCanvas"));
    }

    void changesAreSeenAtOnceByOtherRunsAndKeptExactly() {
        const QString name = file({});
        QtPreferences here(name);
        QtPreferences there(name);
        for (const double value : {0.1 + 0.2, -0.0, -17.5, 1e300}) {
            here.set(preference::defaultCanvasWidth, value);
            QCOMPARE(there.get(preference::defaultCanvasWidth), value);
            QCOMPARE(QtPreferences(name).get(preference::defaultCanvasWidth), value);
        }
    }

    void aStoreThatCannotBeReadHasTheInitialValues() {
        const QByteArray wrongTypes =
            "[General]\ndefaultCanvasWidth=wide\ndefaultCanvasHeight=1, 2\nautoSaveEnabled=8\n";
        for (const QByteArray& contents :
             {wrongTypes, QByteArray("\xFF\xFE{]\n\n=\n[[[\n%%"), QByteArray(3000, '\0')}) {
            const QString name = file(contents);
            QtPreferences preferences(name);
            QVERIFY2(isInitial(preferences), contents);
            preferences.set(preference::defaultCanvasHeight, 900);
            QCOMPARE(preferences.get(preference::defaultCanvasHeight), 900.0);
            QCOMPARE(QtPreferences(name).get(preference::defaultCanvasHeight), 900.0);
        }
    }

    void aStoreThatCannotBeWrittenStillTakesChangesForThisRun() {
        QtPreferences preferences(folder_.path());
        QVERIFY(isInitial(preferences));
        preferences.set(preference::defaultCanvasWidth, 300);
        QCOMPARE(preferences.get(preference::defaultCanvasWidth), 300.0);
    }
};

QTEST_GUILESS_MAIN(QtPreferencesTests)
#include "QtPreferencesTests.moc"
