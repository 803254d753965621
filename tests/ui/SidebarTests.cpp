#include "tests/ui/Pointer.h"
#include "tests/ui/SidebarSetting.h"
#include "tools/StrokeCapture.h"
#include "tools/ToolChoice.h"
#include "ui/controls/ColorSwatch.h"
#include "ui/controls/Colors.h"
#include "ui/controls/LabeledSlider.h"
#include "ui/controls/ModeButton.h"
#include "ui/controls/SemanticColors.h"
#include "ui/sidebar/ExportPopover.h"
#include "ui/sidebar/LayerRow.h"

#include <QAccessible>
#include <QApplication>
#include <QColorDialog>
#include <QPushButton>
#include <QSignalSpy>
#include <QWheelEvent>

#include <functional>

using namespace marlevo;

namespace {

template <typename Button>
QStringList activeOf(SidebarSetting& s) {
    QStringList names;
    for (const Button* button : s.sidebar->findChildren<Button*>())
        if (button->isActive()) names << button->accessibleName();
    return names;
}

/// The names of the layers as listed, from the top.
QStringList listed(SidebarSetting& s) {
    QList<LayerRow*> rows = s.sidebar->findChildren<LayerRow*>();
    rows.removeIf([](const LayerRow* row) { return row->isHidden(); });
    std::sort(rows.begin(), rows.end(), [](auto* a, auto* b) { return a->y() < b->y(); });
    QStringList names;
    for (const LayerRow* row : rows)
        names << row->accessibleName();
    return names;
}

QColor pixel(QWidget& widget, QPoint at) { return widget.grab().toImage().pixelColor(at); }

}  // namespace

class SidebarTests : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aToolButtonChoosesItsTool() {
        SidebarSetting s;
        const DrawingDocument& d = s.document;
        const std::vector<std::pair<QString, std::function<bool()>>> tools{
            {"Fill", [&] { return *d.isFillTool; }},
            {"Draw", [&] { return d.isDrawingMode(); }},
            {"Select", [&] { return *d.isSelectTool; }},
            {"Eraser", [&] { return *d.isEraser; }},
            {"Drop", [&] { return *d.isEyeDropper; }},
            {"Line", [&] { return isShapeChosen(d, Stroke::ShapeType::line); }},
            {"Rectangle", [&] { return isShapeChosen(d, Stroke::ShapeType::rect); }},
            {"Ellipse", [&] { return isShapeChosen(d, Stroke::ShapeType::ellipse); }}};
        for (const auto& [name, isChosen] : tools) {
            s.click(name);
            QVERIFY2(isChosen(), qPrintable(name));
            QCOMPARE(activeOf<ModeButton>(s), QStringList{name});
            // A second press, by a click and by assistive technology, changes nothing.
            s.click(name);
            auto* accessible = QAccessible::queryAccessibleInterface(&s.get(name));
            accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            QCOMPARE(accessible->role(), QAccessible::RadioButton);
            QVERIFY(accessible->state().checked);
            QCOMPARE(activeOf<ModeButton>(s), QStringList{name});
            QCOMPARE(s.window.focusWidget(), s.field);
        }
    }

    void swatchesShowWhetherTheirColorIsSelected() {
        SidebarSetting s;
        const auto inUse = [&] { return activeOf<ColorSwatch>(s); };
        QCOMPARE(inUse(), QStringList{"Color black"});

        s.click("Eraser");
        QVERIFY(inUse().isEmpty());
        s.document.isEraser = false;
        s.document.isFillTool = true;
        QVERIFY(inUse().isEmpty());

        s.document.isShapeTool = true;
        s.click("Color red");
        QCOMPARE(inUse(), QStringList{"Color red"});
        QCOMPARE(toQColor(s.document.selectedColor), semanticColor(SemanticColor::systemRed));
        QVERIFY(!s.document.isFillTool && s.document.isShapeTool);
        s.document.selectedColor = Color{1, 1, 1, 0.99};
        QVERIFY(inUse().isEmpty());
    }

    void theColorWellRestsWhileToolsDoNotUseTheColor() {
        SidebarSetting s;
        auto& well = s.get("Color");
        s.click("Color");
        auto* panel = s.window.findChild<QColorDialog*>();
        QVERIFY(panel && panel->isVisible() && !panel->isModal());
        panel->setCurrentColor(QColor(10, 20, 30));
        QCOMPARE(toQColor(s.document.selectedColor), QColor(10, 20, 30));
        s.document.selectedColor = Color{0, 0.2, 1, 1};
        QCOMPARE(panel->currentColor(), QColor(0, 51, 255));

        s.document.isFillTool = true;
        QVERIFY(!well.isEnabled());
        QVERIFY(!panel->isVisible());
        s.click("Eraser");
        QVERIFY(!well.isEnabled());
        s.click("Color green");
        QVERIFY(well.isEnabled() && !s.document.isEraser);
    }

    void aSliderShowsItsValueTruncatedAndLeavesItAlone() {
        SidebarSetting s;
        auto& size = s.get<ContinuousSlider>("Size");
        auto& opacity = s.get<ContinuousSlider>("Opacity");
        s.document.lineWidth = 12.9;
        s.document.brushOpacity = 0.355;
        QCOMPARE(size.valueInWords(), "12px");
        QCOMPARE(opacity.valueInWords(), "35%");
        s.document.lineWidth = 50;
        size.grab();
        QCOMPARE(s.document.lineWidth.get(), 50.0);
        QCOMPARE(s.document.brushOpacity.get(), 0.355);

        auto* accessible = QAccessible::queryAccessibleInterface(&size);
        QCOMPARE(accessible->role(), QAccessible::Slider);
        accessible->valueInterface()->setCurrentValue(7.5);
        QCOMPARE(s.document.lineWidth.get(), 7.5);
        QTest::keyClick(&size, Qt::Key_Right);
        QCOMPARE(s.document.lineWidth.get(), 8.0);
        const QPointF middle = size.rect().center();
        QWheelEvent wheel(middle, size.mapToGlobal(middle), {}, {0, 120}, {}, {}, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(&size, &wheel);
        QCOMPARE(s.document.lineWidth.get(), 8.0);
        QVERIFY2(!wheel.isAccepted(), "the sidebar scrolls");
        QTest::keyClick(&size, Qt::Key_Home);
        QTest::keyClick(&size, Qt::Key_Left);
        QCOMPARE(s.document.lineWidth.get(), 1.0);

        s.document.brushOpacity = 1;
        QStringList steps;
        for (int i = 0; i < 18; ++i) {
            QTest::keyClick(&opacity, Qt::Key_Down);
            steps << opacity.valueInWords();
        }
        QCOMPARE(steps.mid(0, 3), (QStringList{"95%", "90%", "85%"}));
        QCOMPARE(steps.last(), "10%");
    }

    void theKnobOfASliderFollowsThePointer() {
        SidebarSetting s;
        auto& size = s.get<ContinuousSlider>("Size");
        const int middle = size.height() / 2;
        QTest::mousePress(&size, Qt::LeftButton, {}, {size.width() / 2, middle});
        QVERIFY(std::abs(s.document.lineWidth - 10.5) < 0.2);
        // A press beside the centre of the knob does not move it.
        QTest::mouseRelease(&size, Qt::LeftButton);
        const double before = s.document.lineWidth;
        QTest::mousePress(&size, Qt::LeftButton, {}, {size.width() / 2 + 5, middle});
        QCOMPARE(s.document.lineWidth.get(), before);
        QTest::mouseMove(&size, {size.width() + 50, middle});
        QTRY_COMPARE(s.document.lineWidth.get(), 20.0);
        QTest::mouseRelease(&size, Qt::LeftButton);
        QCOMPARE(s.window.focusWidget(), s.field);
    }

    void theViewSectionFollowsTheDocument() {
        SidebarSetting s;
        s.click("Grid");
        s.click("Transparent background");
        QVERIFY(s.document.showGrid && s.document.backgroundIsTransparent);
        s.document.showGrid = false;
        QVERIFY(!s.get("Grid").isChecked());
        s.click("Background color");
        s.window.findChild<QColorDialog*>()->setCurrentColor(QColor(255, 0, 0, 51));
        QVERIFY(s.document.backgroundColor == (Color{1, 0, 0, 0.2}));
    }

    void layersAreListedFromTheTopAndButtonsStopAtTheEnds() {
        SidebarSetting s;
        QVERIFY(!s.get("Add layer").isVisible());
        s.openLayers();
        const auto enabled = [&](const QString& name) { return s.get(name).isEnabled(); };
        QVERIFY(!enabled("Delete layer") && !enabled("Move layer up") &&
                !enabled("Move layer down"));
        s.click("Add layer");
        s.click("Add layer");
        QTRY_COMPARE(listed(s), (QStringList{"Layer 3", "Layer 2", "Background"}));
        QCOMPARE(activeOf<LayerRow>(s), QStringList{"Layer 3"});
        QVERIFY(!enabled("Move layer up") && enabled("Move layer down") && enabled("Delete layer"));

        s.click("Move layer down");
        QTRY_COMPARE(listed(s), (QStringList{"Layer 2", "Layer 3", "Background"}));
        s.click("Background");
        QCOMPARE(s.document.activeLayerIndex.get(), 0);
        QVERIFY(enabled("Move layer up") && !enabled("Move layer down"));
        s.click("Move layer up");
        QTRY_COMPARE(listed(s), (QStringList{"Layer 2", "Background", "Layer 3"}));
        s.click("Delete layer");
        QTRY_COMPARE(listed(s), (QStringList{"Layer 2", "Layer 3"}));
        QTRY_COMPARE(activeOf<LayerRow>(s), QStringList{"Layer 2"});

        s.click("Hide layer: Layer 3");
        QVERIFY(!s.document.layers->front().isVisible);
        QCOMPARE(s.document.activeLayerIndex.get(), 1);
        QCOMPARE(s.get("Show layer: Layer 3").toolTip(), "Show layer");
        s.document.activeLayerIndex = 7;
        s.showChanges();
        QVERIFY(activeOf<LayerRow>(s).isEmpty());

        auto* row = QAccessible::queryAccessibleInterface(&s.get<LayerRow>("Layer 3"));
        QCOMPARE(row->role(), QAccessible::ListItem);
        QCOMPARE(row->parent()->role(), QAccessible::List);
        row->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        s.showChanges();
        QVERIFY(row->state().selected);
        QCOMPARE(s.document.activeLayerIndex.get(), 0);
        row->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(s.document.layers->front().isVisible);
    }

    void aLayerThatMovesKeepsItsRowAndTheFocus() {
        SidebarSetting s;
        s.document.addLayer();
        s.openLayers();
        auto& row = s.get("Layer 2");
        row.setFocus();
        s.document.moveLayer(1, 0);
        s.showChanges();
        QCOMPARE(&s.get("Layer 2"), &row);
        QCOMPARE(QApplication::focusWidget(), &row);

        // The focus moves from a button that becomes disabled to the layer that it has moved, and
        // from a deleted row to the active layer.
        s.get("Move layer up").setFocus();
        s.type(Qt::Key_Space);
        QVERIFY(!s.get("Move layer up").isEnabled());
        QCOMPARE(s.focused(), "Layer 2");
        s.document.deleteLayer(1);
        s.showChanges();
        QCOMPARE(s.focused(), "Background");
        s.document.addLayer();
        s.showChanges();
        s.get("Delete layer").setFocus();
        s.type(Qt::Key_Space);
        QCOMPARE(s.focused(), "Background");
    }

    void theKeysOfTheListGoFromLayerToLayer() {
        SidebarSetting s;
        s.document.addLayer();
        s.document.addLayer();
        s.openLayers();
        s.get("Layers").setFocus();
        s.type(Qt::Key_Tab);
        const auto after = [&](Qt::Key key) {
            s.type(key);
            return s.focused();
        };
        QCOMPARE(s.focused(), "Layer 3");
        QCOMPARE(after(Qt::Key_Down), "Layer 2");
        QCOMPARE(after(Qt::Key_End), "Background");
        QCOMPARE(after(Qt::Key_Down), "Background");
        QCOMPARE(s.document.activeLayerIndex.get(), 2);
        QCOMPARE(after(Qt::Key_Return), "Background");
        QCOMPARE(s.document.activeLayerIndex.get(), 0);
        QCOMPARE(after(Qt::Key_Up), "Layer 2");
        QCOMPARE(after(Qt::Key_Tab), "Hide layer: Layer 2");
        QCOMPARE(after(Qt::Key_Return), "Show layer: Layer 2");
        QCOMPARE(after(Qt::Key_Home), "Layer 3");
        s.type(Qt::Key_Space);
        QCOMPARE(s.document.activeLayerIndex.get(), 2);
    }

    void aHueChosenFromBlackIsTakenAtFullValue() {
        SidebarSetting s;
        s.click("Color");
        QWidget* hues = nullptr;
        for (QWidget* const part : s.window.findChild<QColorDialog*>()->findChildren<QWidget*>())
            if (part->metaObject()->indexOfSignal("newCol(int,int)") >= 0) hues = part;
        QVERIFY(hues);
        const auto chosenAt = [&](int left) {
            QTest::mouseClick(hues, Qt::LeftButton, {}, {left, 10});
            return toQColor(s.document.selectedColor);
        };
        const QColor first = chosenAt(hues->width() / 3);
        QCOMPARE(first.value(), 255);
        QVERIFY(first.saturation() > 200);
        // A colour with another value keeps it.
        s.document.selectedColor = Color{0.5, 0, 0, 1};
        QVERIFY(std::abs(chosenAt(hues->width() / 2).value() - 128) <= 1);
    }

    void thumbnailsAreRenderedWhenTheyAreSeen() {
        SidebarSetting s;
        QCOMPARE(s.backgroundQueue.size(), std::size_t{0});
        s.openLayers();
        auto& thumbnail = s.get<LayerThumbnailView>("Background");
        const QPoint middle(22, 16);
        QVERIFY(pixel(thumbnail, middle) != QColor(Qt::white));
        while (s.backgroundQueue.run() || s.mainQueue.run()) {
        }
        QCOMPARE(pixel(thumbnail, middle), QColor(Qt::white));
    }

    void theExportPopoverClosesBeforeThePanelShows() {
        SidebarSetting s;
        s.click("Export");
        bool wasOpen = true;
        connect(s.window.findChild<ExportPopover*>(), &ExportPopover::formatChosen, this,
                [&] { wasOpen = s.window.findChild<ExportPopover*>()->isVisible(); });
        s.click("TIFF");
        QVERIFY(!wasOpen);
        QVERIFY(s.panels.save.has_value());
        QCOMPARE(s.panels.save->proposedName, std::string("Drawing-1280x720.tiff"));
    }

    void theExportPopoverClosesAtAPressElsewhereAtEscapeAndWhenItLosesTheFocus() {
        SidebarSetting s;
        const auto isOpen = [&] { return s.window.findChild<ExportPopover*>() != nullptr; };
        s.click("Export");
        const auto& popover = s.get<ExportPopover>("Export as");
        QVERIFY(popover.geometry().right() > s.get("Export").mapTo(&s.window, QPoint(28, 0)).x());
        QTest::keyClick(s.window.focusWidget(), Qt::Key_Escape);
        QTRY_VERIFY(!isOpen());

        // Gets the focus by a click, like the canvas.
        QPushButton other(s.field);
        other.setFocusPolicy(Qt::StrongFocus);
        other.move(200, 400);
        other.show();
        QSignalSpy otherPresses(&other, &QPushButton::pressed);
        for (QWidget* const outside : std::initializer_list<QWidget*>{&s.get("Eraser"), &other}) {
            s.click("Export");
            Pointer pointer(*outside);
            pointer.press({5, 5});
            pointer.release({5, 5});
            QTRY_VERIFY(!isOpen());
            QVERIFY(!s.document.isEraser);
            QVERIFY(otherPresses.isEmpty());
            QCOMPARE(QApplication::focusWidget(), s.field);
        }

        s.click("Export");
        QTest::keyClick(s.window.focusWidget(), Qt::Key_Down);
        QCOMPARE(QApplication::focusWidget()->accessibleName(), "PNG");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QTRY_VERIFY(!isOpen());
        QCOMPARE(QApplication::focusWidget(), s.field);

        s.click("Export");
        QVERIFY(isOpen());
        s.field->setFocus();
        QTRY_VERIFY(!isOpen());
        QCOMPARE(QApplication::focusWidget(), s.field);
    }

    void aDarkPaletteIsFollowedWhileTheProgramRuns() {
        SidebarSetting s;
        const QPalette before = QApplication::palette();
        const QPoint corner(3, s.sidebar->height() - 3);
        QCOMPARE(pixel(*s.sidebar, corner), QColor(Qt::white));
        s.click("Color red");
        QPalette dark = before;
        dark.setColor(QPalette::Window, QColor(40, 40, 40));
        QApplication::setPalette(dark);
        QTRY_COMPARE(pixel(*s.sidebar, corner),
                     semanticColor(SemanticColor::controlBackground, Appearance::dark));
        // The drawing keeps its colour, which no swatch has in the dark palette.
        QVERIFY(activeOf<ColorSwatch>(s).isEmpty());
        QApplication::setPalette(before);
        QTRY_COMPARE(activeOf<ColorSwatch>(s), QStringList{"Color red"});
    }
};

QTEST_MAIN(SidebarTests)
#include "SidebarTests.moc"
