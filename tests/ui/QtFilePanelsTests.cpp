#include "platform/qt/QtFilePanels.h"
#include "platform/qt/SavePanel.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListView>
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

        SavePanel& open(const std::string& proposedName = "Drawing-1280x720.png") {
            panels->showSavePanel({"Export Drawing",
                                   {"PNG image", {"png"}},
                                   proposedName,
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

        /// The text of the message over the panel, which it ends by clicking a button.
        static QString answerMessage(SavePanel& panel, const QString& clicked) {
            auto* message = panel.findChild<QMessageBox*>();
            if (!message) return {};
            const QString text = message->textFormat() == Qt::PlainText ? message->text() : "rich";
            for (QAbstractButton* candidate : message->buttons())
                if (candidate->text().remove('&') == clicked) candidate->click();
            QTest::qWait(1);
            return text;
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
        panel.accept();
        QVERIFY(!Setting::answerMessage(panel, "Cancel").isEmpty());
        QVERIFY(panel.isVisible() && s.answers.empty());
        panel.accept();
        QVERIFY(!Setting::answerMessage(panel, "Replace").isEmpty());
        QCOMPARE(s.names(), QStringList{"old.png"});
    }

    void anyTextIsOneName() {
        const QStringList names{"my \"best\" drawing.png", "a\"b.png", "12\" record.png",
                                "~unknown.png", " \\ % ; & $ .png"};
        for (const QString& name : names) {
            Setting s;
            for (const char* other : {"best", "b.png", "b"})
                s.create(other);
            SavePanel& typed = s.open();
            Setting::type(typed, QString(name).remove(".png"));
            typed.accept();
            QTest::qWait(1);
            s.open(name.toStdString()).accept();
            QCOMPARE(s.names(), (QStringList{name, name}));
        }
    }

    void aProposedNameThatIsNoTextKeepsItsBytes() {
        Setting s;
        const std::string name = "b\xe4.png";
        s.open(name).accept();
        QCOMPARE(s.answers.at(0).value().filename().string(), name);
    }

    void saysWhyANameCannotBeUsed() {
        Setting s;
        SavePanel& panel = s.open();
        QVERIFY(QDir(s.folder.path()).mkdir("<b>x.png"));
        const auto refusal = [&](const QString& name) {
            Setting::type(panel, name);
            panel.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
            return Setting::answerMessage(panel, "OK");
        };
        QVERIFY(refusal("nowhere/name").contains("nowhere"));
        QVERIFY(refusal("<b>x").contains("<b>x.png"));
        // 255 bytes are the most.
        for (const QString& tooLong :
             {QString(126, QChar(0xfc)), QString(252, 'x'), QString(999, 'x')})
            QVERIFY(refusal(tooLong).contains("too long"));
        QVERIFY(panel.isVisible() && s.answers.empty());
        QVERIFY(refusal(QString(251, 'x')).isEmpty());
        QCOMPARE(s.names(), QStringList{QString(251, 'x') + ".png"});
    }

    void aFolderChosenInTheListIsOpened() {
        Setting s;
        QVERIFY(QDir(s.folder.path()).mkdir("sub"));
        SavePanel& panel = s.open();
        auto& list = *panel.findChild<QListView*>("listView");
        QTRY_VERIFY(list.model()->rowCount(list.rootIndex()) == 1);
        list.setCurrentIndex(list.model()->index(0, 0, list.rootIndex()));
        panel.accept();
        QVERIFY(panel.isVisible() && s.answers.empty());
        panel.accept();
        QCOMPARE(s.names(), QStringList{"sub/Drawing-1280x720.png"});
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

    void deletedPanelsGiveNoAnswer() {
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
