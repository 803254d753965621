#include "io/NumberText.h"
#include "tests/ui/RunningApp.h"
#include "ui/windows/NewCanvasSheet.h"
#include "ui/windows/PresetRow.h"

using namespace marlevo;

class NewCanvasSheetTests : public QObject {
    Q_OBJECT

    struct Setting : RunningApp {
        NewCanvasSheet& sheet = showSheet();
        QCheckBox& useCustom = button<QCheckBox>(sheet, "Custom size");
        QLineEdit& width = control<QLineEdit>(sheet, "Width");
        QLineEdit& height = control<QLineEdit>(sheet, "Height");
        QPushButton& create = button<QPushButton>(sheet, "Create Canvas");

        NewCanvasSheet& showSheet() {
            window.content().setShowNewCanvas(true);
            return *window.findChild<NewCanvasSheet*>();
        }

        bool previewIs(const QString& text) const {
            for (const TextLabel* label : sheet.findChildren<TextLabel*>())
                if (label->text() == text) return label->isVisible();
            return false;
        }
    };

private Q_SLOTS:
    void numbersAreWholeTextsInCNotation() {
        const std::vector<std::pair<const char*, double>> numbers{
            {"1e3", 1000}, {"+800", 800}, {"-5", -5},   {"800.7", 800.7},
            {".5", 0.5},   {"5.", 5},     {"2E+2", 200}};
        for (const auto& [text, number] : numbers)
            QVERIFY2(parseNumber(text) == number, text);
        for (const char* text : {"", " 800", "800 ", "800px", "800,5", "1,000", "+-5", "++5", "+",
                                 "inf", "-infinity", "nan", "1e999", "0x10", "1e", "٨٠٠"})
            QVERIFY2(!parseNumber(text), text);
    }

    void aSizeIsResolvedWithinItsBounds() {
        Setting s;
        QVERIFY(!s.sheet.resolveSize() && !s.create.isEnabled());
        s.useCustom.setChecked(true);
        const auto resolved = [&](const char* width, const char* height) {
            s.width.setText(width);
            s.height.setText(height);
            const bool isResolved = s.sheet.resolveSize().has_value();
            return isResolved == s.create.isEnabled() && isResolved;
        };
        QVERIFY(resolved("10000", "0.1"));
        QVERIFY(!resolved("10000.001", "600"));
        QVERIFY(!resolved("0", "600"));
        QVERIFY(!resolved("800", "-1"));
        QVERIFY(!resolved("800", ""));
        QVERIFY(resolved("800.7", "600"));
        QVERIFY(s.previewIs("800 × 600 px"));
        QVERIFY((s.sheet.resolveSize() == CanvasSize{800.7, 600}));
        QVERIFY(!resolved("800px", "600"));
        QVERIFY(!s.previewIs("800 × 600 px"));
    }

    void presetAndCustomSizeExcludeEachOther() {
        Setting s;
        QCOMPARE(s.width.text(), QString("1280"));
        QCOMPARE(s.height.text(), QString("720"));
        QVERIFY(!s.width.isEnabled() && !s.height.isEnabled());
        PresetRow& row = *s.sheet.findChildren<PresetRow*>().at(1);
        QTest::mouseClick(&row, Qt::LeftButton);
        QVERIFY(row.isChecked() && s.create.isEnabled());
        QTest::mouseClick(&row, Qt::LeftButton);
        QVERIFY(row.isChecked());
        QVERIFY(s.sheet.resolveSize() == row.preset().size);

        s.useCustom.setChecked(true);
        QVERIFY(!row.isChecked() && s.width.isEnabled());
        QVERIFY((s.sheet.resolveSize() == CanvasSize{1280, 720}));
        QTest::mouseClick(&row, Qt::LeftButton);
        QVERIFY(!s.useCustom.isChecked() && row.isChecked());
        s.useCustom.setChecked(true);
        s.useCustom.setChecked(false);
        QVERIFY(!s.sheet.resolveSize());
    }

    void theDefaultsAreReadWhenTheSheetIsShown() {
        Setting s;
        s.preferences.set(preference::defaultCanvasWidth, 800.5);
        s.preferences.set(preference::defaultCanvasHeight, -3);
        QCOMPARE(s.width.text(), QString("1280"));
        s.window.content().setShowNewCanvas(false);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        NewCanvasSheet& again = s.showSheet();
        QCOMPARE(control<QLineEdit>(again, "Width").text(), QString("800"));
        QCOMPARE(control<QLineEdit>(again, "Height").text(), QString());
        s.preferences.set(preference::defaultCanvasWidth, 1e300);
    }

    void creatingSetsTheCanvasSizeAndNothingElse() {
        Setting s;
        drawStroke(s.document);
        s.useCustom.setChecked(true);
        s.width.setText("333.5");
        s.create.click();
        QVERIFY((s.document.canvasSize == CanvasSize{333.5, 720}));
        QCOMPARE(strokeCount(s.document.layers), std::size_t{1});
        s.document.undo();
        QVERIFY(!s.document.canUndo());
        QVERIFY(!s.window.content().showNewCanvas());
    }

    void cancelAndEscapeDismissTheSheet() {
        for (const Qt::KeyboardModifiers modifiers : {Qt::NoModifier, Qt::ControlModifier}) {
            Setting s;
            s.useCustom.setChecked(true);
            s.width.setFocus();
            QTest::keyClick(s.window.windowHandle(), Qt::Key_Escape, modifiers);
            // A button shows the press of its key before it acts.
            QTRY_VERIFY(!s.window.content().showNewCanvas());
        }
        Setting s;
        button<QPushButton>(s.sheet, "Cancel").click();
        QVERIFY(!s.window.content().showNewCanvas());
        QVERIFY((s.document.canvasSize == CanvasSize{1280, 720}));
    }

    void theSheetKeepsPointerAndTabAndFitsASmallWindow() {
        Setting s;
        s.window.resize(s.window.minimumSize());
        QVERIFY(QTest::qWaitFor([&] { return s.window.content().height() <= 501; }));
        QTest::mouseClick(&s.window, Qt::LeftButton, {},
                          s.window.canvasView().mapTo(&s.window, QPoint(5, 5)));
        QVERIFY(!s.document.canUndo());
        for (int i = 0; i < 20; ++i) {
            QTest::keyClick(s.window.windowHandle(), Qt::Key_Tab);
            QVERIFY(s.sheet.isAncestorOf(s.window.focusWidget()));
        }
        const QRect shown(s.create.mapTo(&s.window, QPoint()), s.create.size());
        QVERIFY(s.window.rect().contains(shown));
    }
};

QTEST_MAIN(NewCanvasSheetTests)
#include "NewCanvasSheetTests.moc"
