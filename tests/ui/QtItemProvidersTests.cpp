#include "platform/qt/QtItemProviders.h"
#include "tests/support/TemporaryFolder.h"

#include <QMimeData>
#include <QTest>
#include <QUrl>

#include <future>

using namespace marlevo;

class QtItemProvidersTests : public QObject {
    Q_OBJECT

    /// What a file manager drops.
    static std::vector<std::unique_ptr<ItemProvider>> dropped(const QByteArray& addresses) {
        QMimeData data;
        data.setData("text/uri-list", addresses);
        return itemProviders(data);
    }

    static QByteArray loaded(ItemProvider& item) {
        auto delivery = std::make_shared<std::promise<QByteArray>>();
        item.loadImage([delivery](const auto& file) {
            delivery->set_value(file ? QByteArray(reinterpret_cast<const char*>(file->data()),
                                                  qsizetype(file->size()))
                                     : "none");
        });
        return delivery->get_future().get();
    }

private Q_SLOTS:
    void filesAreReadWhateverTheBytesOfTheirNames() {
        const TemporaryFolder folder;
        const std::string png = "\x89PNG\r\n\x1a\n and so on";
        writeText(folder / "b\xe4 #.png", "not looked at");
        writeText(folder / "picture", png);
        writeText(folder / "text\xe4.txt", png);
        std::filesystem::create_directory(folder / "folder.png");
        QByteArray addresses;
        for (const char* name :
             {"b%E4%20%23.png", "picture", "text%E4.txt", "folder.png", "no.png"})
            addresses +=
                "file://" + QByteArray::fromStdString(folder.path().string()) + '/' + name + "\r\n";
        const auto items = dropped(addresses);
        QCOMPARE(items.size(), std::size_t(5));
        QVERIFY(items[0]->offersImage());
        QVERIFY(items[1]->offersImage());
        for (const int other : {2, 3, 4})
            QVERIFY(!items[std::size_t(other)]->offersImage());
        QCOMPARE(loaded(*items[0]), QByteArray("not looked at"));
        QCOMPARE(loaded(*items[1]), QByteArray::fromStdString(png));
        QCOMPARE(loaded(*items[3]), QByteArray("none"));
        QCOMPARE(loaded(*items[4]), QByteArray("none"));
    }
};

QTEST_MAIN(QtItemProvidersTests)
#include "QtItemProvidersTests.moc"
