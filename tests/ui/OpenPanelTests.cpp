#include "platform/qt/OpenPanel.h"
#include "platform/qt/QtFilePanels.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>

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
            if (!file.open(QIODevice::WriteOnly)) qFatal("cannot write");
            return file.fileName();
        }

        void confirm(const QString& name) const {
            panel->findChild<QLineEdit*>("fileNameEdit")->setText(name);
            panel->accept();
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
