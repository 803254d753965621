#include "platform/qt/QtFilePanels.h"
#include "platform/qt/SavePanel.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace marlevo;

class QtFilePanelsTests : public QObject {
    Q_OBJECT

    struct Setting {
        QTemporaryDir folder;
        QWidget window;
        std::unique_ptr<QtFilePanels> panels = std::make_unique<QtFilePanels>(window);
        std::vector<std::optional<std::filesystem::path>> answers;

        Setting() { window.show(); }

        SavePanel& open() {
            panels->showSavePanel({"Export Drawing",
                                   {"PNG image", {"png"}},
                                   "Drawing-1280x720.png",
                                   folder.path().toStdString()},
                                  [this](const auto& answer) { answers.push_back(answer); });
            return *window.findChild<SavePanel*>();
        }

        static void type(SavePanel& panel, const QString& name) {
            panel.findChild<QLineEdit*>("fileNameEdit")->setText(name);
        }

        void create(const QString& name) const {
            QFile file(folder.filePath(name));
            if (!file.open(QIODevice::WriteOnly)) qFatal("cannot write");
        }

        /// The answers so far, as names in the folder.
        QStringList names() const {
            QStringList all;
            for (const auto& answer : answers)
                all << (answer ? QDir(folder.path())
                                     .relativeFilePath(QString::fromStdString(answer->string()))
                               : QStringLiteral("cancelled"));
            return all;
        }
    };

private Q_SLOTS:
    void proposesTheNameUnderTheTitle() {
        Setting s;
        SavePanel& panel = s.open();
        QVERIFY(panel.isVisible());
        QCOMPARE(panel.windowTitle(), QString("Export Drawing"));
        QVERIFY(s.answers.empty());
        panel.accept();
        QCOMPARE(s.names(), QStringList{"Drawing-1280x720.png"});
    }

    void addsTheExtensionWhenItIsMissing() {
        const std::vector<std::pair<QString, QString>> cases{{"name", "name.png"},
                                                             {"my.drawing", "my.drawing.png"},
                                                             {"name.PNG", "name.PNG"},
                                                             {"Zeichnung ü", "Zeichnung ü.png"}};
        for (const auto& [typed, expected] : cases) {
            Setting s;
            SavePanel& panel = s.open();
            Setting::type(panel, typed);
            panel.accept();
            QCOMPARE(s.names(), QStringList{expected});
        }
    }

    void asksBeforeItReplacesAFileAlsoWhenItAddedTheExtension() {
        Setting s;
        s.create("old.png");
        SavePanel& panel = s.open();
        Setting::type(panel, "old");
        const auto answerWith = [&panel](const QString& button) {
            auto* question = panel.findChild<QMessageBox*>();
            if (!question) return false;
            for (QAbstractButton* candidate : question->buttons())
                if (candidate->text().remove('&') == button) candidate->click();
            QTest::qWait(1);
            return true;
        };
        panel.accept();
        QVERIFY(answerWith("Cancel"));
        QVERIFY(panel.isVisible() && s.answers.empty());
        panel.accept();
        QVERIFY(answerWith("Replace"));
        QCOMPARE(s.names(), QStringList{"old.png"});
    }

    void refusesAFolderThatDoesNotExist() {
        Setting s;
        SavePanel& panel = s.open();
        Setting::type(panel, "nowhere/name");
        panel.accept();
        QVERIFY(panel.isVisible() && s.answers.empty());
        QVERIFY(panel.findChild<QMessageBox*>());
    }

    void cancellingAndAskingTwiceAnswerWithNothing() {
        Setting s;
        SavePanel& panel = s.open();
        s.open();
        QVERIFY(s.answers.empty());
        QTRY_COMPARE(s.names(), QStringList{"cancelled"});
        QCOMPARE(s.window.findChildren<SavePanel*>().size(), 1);
        panel.reject();
        QTest::qWait(1);
        QCOMPARE(s.names(), (QStringList{"cancelled", "cancelled"}));
    }

    void nobodyIsToldAfterThePanelsAreGone() {
        Setting s;
        s.open();
        s.panels.reset();
        QTest::qWait(1);
        QVERIFY(s.answers.empty());
        QVERIFY(!s.window.findChild<SavePanel*>());
    }
};

QTEST_MAIN(QtFilePanelsTests)
#include "QtFilePanelsTests.moc"
