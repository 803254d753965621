#include "platform/qt/OpenPanel.h"
#include "platform/qt/QtFilePanels.h"
#include "platform/qt/SavePanel.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

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

        OpenPanel& showOpenPanel() {
            panels->showOpenPanel({"Open Drawing", {"Marlevo drawing", {"marlevo"}}},
                                  [this](const auto& answer) { answers.push_back(answer); });
            OpenPanel& panel = *window.findChild<OpenPanel*>();
            panel.setDirectory(folder.path());
            return panel;
        }
        static void confirm(OpenPanel& panel, const QString& name) {
            panel.findChild<QLineEdit*>("fileNameEdit")->setText(name);
            panel.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->click();
        }

        static void type(SavePanel& panel, const QString& name) {
            panel.findChild<QLineEdit*>("fileNameEdit")->setText(name);
        }

        void create(const QString& name) const {
            QFile file(folder.filePath(name));
            if (!file.open(QIODevice::WriteOnly) || file.write("{}") != 2) qFatal("cannot write");
        }

        /// The text of the message over the panel. Clicks a button of the message.
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
        // A file name has at most 255 bytes.
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

    void anOpenPanelAnswersWithTheFileChosen() {
        Setting s;
        OpenPanel& panel = s.showOpenPanel();
        QVERIFY(panel.isVisible());
        QCOMPARE(panel.windowTitle(), QString("Open Drawing"));
        QCOMPARE(panel.nameFilters(), QStringList("Marlevo drawing (*.marlevo)"));
        s.create("a.marlevo");
        QVERIFY(s.answers.empty());
        Setting::confirm(panel, "a.marlevo");
        QCOMPARE(s.names(), QStringList{"a.marlevo"});
    }

    void aQuoteIsPartOfAFilesName() {
        Setting s;
        OpenPanel& panel = s.showOpenPanel();
        s.create("say \"hi\".marlevo");
        s.create("hi");
        Setting::confirm(panel, "say \"hi\".marlevo");
        QCOMPARE(s.names(), QStringList{"say \"hi\".marlevo"});
    }

    void theListShowsSizeTypeAndDateWhole() {
        Setting s;
        OpenPanel& panel = s.showOpenPanel();
        s.create("a.marlevo");
        auto& list = *panel.findChild<QTreeView*>("treeView");
        QTRY_VERIFY(list.model()->rowCount(list.rootIndex()) == 1);
        for (int column = 1; column < list.model()->columnCount(); ++column) {
            const QModelIndex cell = list.model()->index(0, column, list.rootIndex());
            QTRY_VERIFY(!cell.data().toString().isEmpty());
            const int needed = list.fontMetrics().horizontalAdvance(cell.data().toString());
            QTRY_VERIFY2(list.visualRect(cell).width() > needed,
                         qPrintable(cell.data().toString()));
        }
    }

    void anOpenPanelStaysOpenForAMissingFileAndForAFolder() {
        Setting s;
        OpenPanel& panel = s.showOpenPanel();
        QVERIFY(QDir(s.folder.path()).mkdir("sub"));
        Setting::confirm(panel, "missing.marlevo");
        QMessageBox* const message = panel.findChild<QMessageBox*>();
        QVERIFY(message && message->isVisible());
        message->accept();
        Setting::confirm(panel, "sub");
        QVERIFY(panel.isVisible());
        QCOMPARE(panel.directory().dirName(), QString("sub"));
        QVERIFY(s.answers.empty());

        panel.reject();
        QCOMPARE(s.names(), QStringList{"cancelled"});
    }
};

QTEST_MAIN(QtFilePanelsTests)
#include "QtFilePanelsTests.moc"
