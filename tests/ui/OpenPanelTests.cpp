#include "platform/qt/OpenPanel.h"
#include "platform/qt/QtFilePanels.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

using namespace marlevo;

class OpenPanelTests : public QObject {
    Q_OBJECT

    struct Setting {
        QTemporaryDir folder;
        QWidget window;
        QtFilePanels panels{window};
        std::vector<std::optional<std::filesystem::path>> answers;
        OpenPanel* panel = nullptr;

        Setting() {
            window.show();
            panels.showOpenPanel({"Open Drawing", {"Marlevo drawing", {"marlevo"}}},
                                 [this](const auto& answer) { answers.push_back(answer); });
            panel = window.findChild<OpenPanel*>();
            panel->setDirectory(folder.path());
        }

        QString create(const QString& name) const {
            QFile file(folder.filePath(name));
            if (!file.open(QIODevice::WriteOnly) || file.write("{}") != 2) qFatal("cannot write");
            return file.fileName();
        }

        void confirm(const QString& name) const {
            panel->findChild<QLineEdit*>("fileNameEdit")->setText(name);
            panel->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->click();
        }
    };

private Q_SLOTS:
    void answersWithTheFileChosen() {
        Setting s;
        QVERIFY(s.panel->isVisible());
        QCOMPARE(s.panel->windowTitle(), QString("Open Drawing"));
        QCOMPARE(s.panel->nameFilters(), QStringList("Marlevo drawing (*.marlevo)"));
        const QString file = s.create("a.marlevo");
        QVERIFY(s.answers.empty());
        s.confirm("a.marlevo");
        QCOMPARE(s.answers.size(), 1u);
        QCOMPARE(s.answers[0], std::filesystem::path(file.toStdString()));
    }

    void aQuoteIsPartOfAName() {
        Setting s;
        const QString file = s.create("say \"hi\".marlevo");
        s.create("hi");
        s.confirm("say \"hi\".marlevo");
        QCOMPARE(s.answers.size(), 1u);
        QCOMPARE(s.answers[0], std::filesystem::path(file.toStdString()));
    }

    void theListShowsSizeTypeAndDateWhole() {
        Setting s;
        s.create("a.marlevo");
        auto& list = *s.panel->findChild<QTreeView*>("treeView");
        QTRY_VERIFY(list.model()->rowCount(list.rootIndex()) == 1);
        for (int column = 1; column < list.model()->columnCount(); ++column) {
            const QModelIndex cell = list.model()->index(0, column, list.rootIndex());
            QTRY_VERIFY(!cell.data().toString().isEmpty());
            const int needed = list.fontMetrics().horizontalAdvance(cell.data().toString());
            QTRY_VERIFY2(list.visualRect(cell).width() > needed,
                         qPrintable(cell.data().toString()));
        }
    }

    void staysOpenForAMissingFileAndForAFolder() {
        Setting s;
        QVERIFY(QDir(s.folder.path()).mkdir("sub"));
        s.confirm("missing.marlevo");
        QMessageBox* const message = s.panel->findChild<QMessageBox*>();
        QVERIFY(message && message->isVisible());
        message->accept();
        s.confirm("sub");
        QVERIFY(s.panel->isVisible());
        QCOMPARE(s.panel->directory().dirName(), QString("sub"));
        QVERIFY(s.answers.empty());

        s.panel->reject();
        QCOMPARE(s.answers.size(), 1u);
        QVERIFY(!s.answers[0]);
    }
};

QTEST_MAIN(OpenPanelTests)
#include "OpenPanelTests.moc"
