#include "ui/controls/ControlPainting.h"
#include "ui/controls/DistributeWidth.h"
#include "ui/controls/Icons.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/TextLabel.h"

#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

using namespace marlevo;

namespace {

double linear(float component) {
    return component <= 0.04045F ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

/// Relative luminance as in WCAG 2.1.
double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& a, const QColor& b) {
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor over(const QColor& top, const QColor& bottom) {
    const auto mix = [&](float a, float b) { return top.alphaF() * a + (1 - top.alphaF()) * b; };
    return QColor::fromRgbF(mix(top.redF(), bottom.redF()), mix(top.greenF(), bottom.greenF()),
                            mix(top.blueF(), bottom.blueF()));
}

}  // namespace

class LookTests : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void textHasContrastOnEveryBackground() {
        using enum SemanticColor;
        for (const Appearance appearance : {Appearance::light, Appearance::dark}) {
            const auto color = [&](SemanticColor which) {
                return semanticColor(which, appearance);
            };
            for (const SemanticColor text : {primary, secondary, tertiary}) {
                for (const SemanticColor background : {controlBackground, windowBackground}) {
                    const QColor plain = color(background);
                    QVERIFY(contrast(color(text), plain) >= 4.5);
                    QVERIFY(contrast(color(text), over(color(quaternaryFill), plain)) >= 4.5);
                    QVERIFY(contrast(color(text), over(withOpacity(color(gray), 0.06), plain)) >=
                            4.5);
                }
                const QColor chosen =
                    over(withOpacity(color(blue), 0.15), color(controlBackground));
                QVERIFY(contrast(color(text), chosen) >= 4.5);
            }
            QVERIFY(contrast(Qt::white, color(blue)) >= 4.5);
            QVERIFY(contrast(color(blue), color(controlBackground)) >= 3);
            const QColor menu = color(windowBackground);
            QVERIFY(contrast(color(outline), menu) >= 3);
            QVERIFY(contrast(color(outline), color(controlBackground)) >= 3);
            QVERIFY(contrast(color(blue), menu) >= 3);
            QVERIFY(contrast(over(withOpacity(color(primary), opacity::disabledMenuItem), menu),
                             menu) >= 3);
        }
    }

    void straightLinesOfIconsLieOnWholePixels() {
        struct Cut {
            Icon icon;
            Qt::Orientation direction;
            double share;  ///< of the icon's side, where the cut crosses lines only
            std::ptrdiff_t lines;
        };
        using enum Qt::Orientation;
        for (const Cut& cut : {Cut{Icon::plus, Horizontal, 0.3, 1},
                               {Icon::plus, Vertical, 0.3, 1},
                               {Icon::minus, Vertical, 0.5, 1},
                               {Icon::arrowUp, Horizontal, 0.7, 1},
                               {Icon::arrowDown, Horizontal, 0.3, 1},
                               {Icon::grid, Horizontal, 0.5, 4},
                               {Icon::grid, Vertical, 0.5, 4},
                               {Icon::rectangle, Horizontal, 0.5, 2},
                               {Icon::rectangle, Vertical, 0.5, 2}}) {
            // Of 13, 16 and 19 points at the scales 1, 1.25, 1.5 and 2.
            for (const int pixels : {13, 16, 17, 19, 20, 24, 26, 29, 32, 38}) {
                QImage image(pixels, pixels, QImage::Format_RGB32);
                image.fill(Qt::white);
                QPainter painter(&image);
                paintIcon(painter, cut.icon, image.rect(), Qt::black);
                std::array<std::ptrdiff_t, 256> count{};
                const int across = int(cut.share * pixels);
                for (int i = 0; i < pixels; ++i)
                    ++count[qGray(cut.direction == Horizontal ? image.pixel(i, across)
                                                              : image.pixel(across, i))];
                const auto width = std::max(1, qRound(1.5 * pixels / 16));
                QCOMPARE(count[0], cut.lines * width);
                QCOMPARE(count[255], pixels - cut.lines * width);
            }
        }
    }

    void aRowIsSharedEquallyUnlessALabelNeedsMore() {
        const auto shares = [](std::vector<int> needs, int width) {
            return distributeWidth(needs, width);
        };
        QCOMPARE(shares({10, 20, 30}, 100), (std::vector{33, 33, 34}));
        QCOMPARE(shares({10, 20, 60}, 120), (std::vector{20, 30, 70}));
        const auto tight = shares({50, 100, 50}, 101);
        QCOMPARE(std::accumulate(tight.begin(), tight.end(), 0), 101);
        QVERIFY(tight[1] > tight[0] && tight[0] >= 25);
        QCOMPARE(shares({10, 20}, -5), (std::vector{0, 0}));
    }

    void aTooltipShowsATextAsItIs() {
        for (const QString name : {"<h1>Sky", "Sky & sea", "&lt;", "5 < 6 &amp; 7"}) {
            TextLabel label(name, {TypeStyle::callout});
            label.resize(3, 20);
            label.show();
            QHelpEvent help(QEvent::ToolTip, {}, QPoint(50, 50));
            QApplication::sendEvent(&label, &help);
            const QString shown = QToolTip::text();
            QTextDocument read;
            if (Qt::mightBeRichText(shown))
                read.setHtml(shown);
            else
                read.setPlainText(shown);
            QCOMPARE(read.toPlainText().replace(QChar::Nbsp, ' '), name);
        }
    }
};

QTEST_MAIN(LookTests)
#include "LookTests.moc"
