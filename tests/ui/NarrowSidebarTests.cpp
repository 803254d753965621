#include "tests/ui/SeenControls.h"
#include "tests/ui/SidebarSetting.h"
#include "ui/controls/ColorSwatch.h"
#include "ui/controls/DisclosureSection.h"
#include "ui/windows/Translations.h"

using namespace marlevo;

/// The sidebar at each of its widths, in each language, with small and large fonts.
class NarrowSidebarTests : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyControlIsSeenWhole_data() {
        QTest::addColumn<QString>("language");
        for (const char* const language : {"en", "de", "fr", "es", "ja"})
            QTest::newRow(language) << language;
    }

    void everyControlIsSeenWhole() {
        QFETCH(QString, language);
        QLocale::setDefault(QLocale(language));
        const Translations translations;
        const QFont before = QApplication::font();
        SidebarSetting s;
        s.document.addLayer();
        for (auto* section : s.sidebar->findChildren<DisclosureSection*>())
            section->setOpen(true);
        QTest::qWait(250);
        const QWidget& column = *s.sidebar->widget();
        for (const int points : {8, 10, 12, 14, 16, 18, 20, 22, 24}) {
            QFont font = before;
            font.setPointSize(points);
            QApplication::setFont(font);
            QCOMPARE(s.sidebar->minimumSizeHint().width(), SidebarView::leastWidth);
            for (int width = SidebarView::leastWidth; width <= SidebarView::greatestWidth;
                 width += 8) {
                // High enough for all sections, so that nothing is scrolled out of sight.
                s.sidebar->setFixedSize(width, 3000);
                QCoreApplication::sendPostedEvents();
                QCOMPARE(column.width(), s.sidebar->viewport()->width());
                QVERIFY(controlsIn(column).size() > 40);
                const QString faults = faultsIn(column, {"Background", "Layer 2"});
                QVERIFY2(faults.isEmpty(), qPrintable(QStringLiteral("%1 points, %2 wide: %3")
                                                          .arg(points)
                                                          .arg(width)
                                                          .arg(faults)));
            }
            const int letters = QFontMetrics(font).ascent();
            QVERIFY(s.sidebar->style()->pixelMetric(QStyle::PM_IndicatorWidth) >= 0.9 * letters);
            QVERIFY(s.sidebar->findChild<ColorSwatch*>()->height() >= 0.8 * letters);
        }
        QApplication::setFont(before);
        QLocale::setDefault(QLocale::c());
    }
};

QTEST_MAIN(NarrowSidebarTests)
#include "NarrowSidebarTests.moc"
