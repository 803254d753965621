#include "tests/ui/MarlevoLook.h"
#include "tests/ui/Pointer.h"
#include "ui/controls/CheckBox.h"
#include "ui/controls/ColorSwatch.h"
#include "ui/controls/ContinuousSlider.h"
#include "ui/controls/ControlPainting.h"
#include "ui/controls/IconButton.h"
#include "ui/controls/ModeButton.h"
#include "ui/controls/SemanticColors.h"
#include "ui/controls/SmallButton.h"
#include "ui/controls/Switch.h"
#include "ui/windows/PresetRow.h"

#include <QApplication>
#include <QMenu>
#include <QStyle>

#include <functional>

using namespace marlevo;

namespace {

enum class State { rest, hover, pressed, focused, disabled };

/// A colour on the window's background, which differs between light and dark.
struct Shade {
    std::function<QColor()> color;
    double opacity = 1;
};

Shade shade(SemanticColor color, double opacity = 1) {
    return {[color] { return semanticColor(color); }, opacity};
}
Shade shade(QColor color) {
    return {[color] { return color; }};
}
Shade blue(double opacity = 1) { return shade(SemanticColor::blue, opacity); }
Shade gray(double opacity = 1) { return shade(SemanticColor::gray, opacity); }
const Shade white = shade(Qt::white);
const Shade nothing = gray(0);

/// One pixel of a control.
struct Probe {
    int fromLeading;  ///< from the side where reading starts; from the opposite side if negative
    int fromMiddle;   ///< downwards from the vertical middle
    Shade expected;
};

struct Case {
    const char* name;
    std::function<QWidget*()> make;
    State state;
    std::vector<Probe> probes;
    int leadingGap = 0;   ///< between the edge and the first painted column
    int trailingGap = 0;  ///< likewise; text may end up to two columns before it
};

QWidget* slider() {
    auto* slider = new ContinuousSlider("Size", {0, 10, 1});
    slider->setFixedWidth(116);
    slider->showValue(5, "5");
    return slider;
}
/// Has the look of every push button with the focus in a sheet.
QWidget* defaultButton() {
    auto* button = new QPushButton("Label");
    button->setDefault(true);
    return button;
}
template <class Button>
std::function<QWidget*()> button(bool isChecked) {
    return [isChecked] {
        auto* made = new Button(QStringLiteral("Label"));
        made->setChecked(isChecked);
        return made;
    };
}
std::function<QWidget*()> preset(bool isChosen) {
    return [isChosen] {
        auto* row = new PresetRow({Uuid::random(), "Square", {10, 10}});
        row->showChosen(isChosen);
        return row;
    };
}
std::function<QWidget*()> tool(ModeButton::Kind kind, bool isActive) {
    return [kind, isActive] {
        auto* made = new ModeButton(kind, Icon::grid, "Label");
        made->setActive(isActive);
        return made;
    };
}
std::function<QWidget*()> icon(ToolButton::Look look) {
    return [look] { return new IconButton(Icon::grid, "Name", look); };
}
std::function<QWidget*()> swatch(ColorSwatch::Selection selection) {
    return [selection] {
        auto* made = new ColorSwatch("Black", [] { return black; });
        made->setSelection(selection);
        return made;
    };
}
QWidget* menu() {
    auto* made = new QMenu;
    made->setActiveAction(made->addAction("Selected"));
    made->addSeparator();
    made->addAction("Disabled")->setEnabled(false);
    return made;
}

const std::vector<Case>& cases() {
    using enum State;
    const auto box = [](bool isChecked) { return button<CheckBox>(isChecked); };
    const auto toggle = [](bool isChecked) { return button<Switch>(isChecked); };
    using enum ModeButton::Kind;
    using enum ToolButton::Look;
    using enum ColorSwatch::Selection;
    const Shade blackPaint = shade(QColor(Qt::black));
    const Shade edge = shade(SemanticColor::outline);
    const Shade face = shade(SemanticColor::windowBackground);
    static const std::vector<Case> all{
        {"menu", menu, rest, {{0, 0, edge}, {3, 0, face}, {7, -12, blue()}, {7, 12, face}}},
        {"tool", tool(primary, false), rest, {{0, 0, gray(0.41)}, {5, -6, gray(0.06)}}},
        {"tool", tool(primary, false), focused, {{0, 0, blue()}, {5, -6, gray(0.06)}}},
        {"primary tool in use", tool(primary, true), rest, {{0, 0, blue()}, {5, -6, blue()}}},
        {"tool in use", tool(secondary, true), rest, {{0, 0, blue()}, {5, -6, blue(0.15)}}},
        {"icon", icon(borderless), hover, {{2, 0, gray(0.12)}}},
        {"icon", icon(borderless), pressed, {{2, 0, gray(0.25)}}},
        {"framed icon", icon(bordered), rest, {{2, 0, gray(0.06)}}},
        {"framed icon", icon(bordered), disabled, {{2, 0, gray(0.06)}}},
        {"framed icon", icon(bordered), focused, {{0, 0, blue()}, {3, 0, gray(0.06)}}},
        {"black swatch", swatch(none), rest, {{8, -5, blackPaint}, {8, 0, blackPaint}}},
        {"swatch in use", swatch(active), rest, {{8, -7, blue()}, {8, 0, blackPaint}}},
        {"check box", box(false), rest, {{3, 0, gray()}, {10, 0, gray(0.06)}}, 3, 3},
        {"check box", box(false), hover, {{10, 0, gray(0.12)}}, 3, 3},
        {"check box", box(false), pressed, {{10, 0, gray(0.25)}}, 3, 3},
        {"check box", box(false), focused, {{0, 0, blue()}, {3, 0, gray()}}},
        {"check box", box(false), disabled, {{3, 0, gray()}, {10, 0, gray(0.06)}}, 3, 3},
        {"checked box", box(true), rest, {{4, 0, blue()}, {10, 2, white}, {15, 4, blue()}}, 3, 3},
        {"checked box", box(true), focused, {{0, 0, blue()}, {4, 0, blue()}}},
        {"checked box", box(true), disabled, {{4, 0, blue()}}, 3, 3},
        {"switch", toggle(false), rest, {{-8, 0, gray()}, {-25, 0, white}}},
        {"switch", toggle(false), focused, {{-8, 0, gray()}, {-33, 0, blue()}}},
        {"switch", toggle(false), pressed, {{-8, 0, gray()}, {-25, 0, white}}},
        {"switch", toggle(false), disabled, {{-8, 0, gray()}}},
        {"switched on", toggle(true), disabled, {{-25, 0, blue()}}},
        {"switched on", toggle(true), rest, {{-8, 0, white}, {-25, 0, blue()}, {-40, 0, nothing}}},
        {"default button", defaultButton, focused, {{3, 0, blue()}, {-4, 4, blue()}}},
        {"small button", button<SmallButton>(false), focused, {{0, 0, blue()}, {-1, 0, blue()}}},
        {"slider", slider, rest, {{20, 0, blue()}, {58, 0, white}, {95, 0, gray(0.35)}}, 1, 1},
        {"slider", slider, focused, {{52, 0, blue()}, {58, 0, white}}, 1, 1},
        {"slider", slider, pressed, {{52, 0, blue()}, {58, 0, shade(QColor(0xe8e8ec))}}, 1, 1},
        {"slider", slider, disabled, {{95, 0, gray(0.35)}}, 1, 1},
        {"preset", preset(false), rest, {{3, 0, nothing}, {-5, 0, nothing}}, 10, 36},
        {"preset", preset(false), hover, {{3, 0, shade(SemanticColor::primary, 0.05)}}},
        {"preset", preset(false), pressed, {{3, 0, shade(SemanticColor::primary, 0.05)}}},
        {"preset", preset(false), focused, {{0, 0, blue()}, {5, 0, nothing}}},
        {"chosen preset", preset(true), rest, {{3, 0, blue(0.1)}, {-14, -4, blue()}}},
        {"chosen preset", preset(true), pressed, {{3, 0, blue(0.1)}, {-14, -4, blue()}}},
        {"chosen preset", preset(true), focused, {{0, 0, blue()}, {5, 0, blue(0.1)}}},
    };
    return all;
}

QColor over(const QColor& top, double opacity, const QColor& bottom) {
    const double share = top.alphaF() * opacity;
    const auto mix = [&](int a, int b) { return qRound(share * a + (1 - share) * b); };
    return {mix(top.red(), bottom.red()), mix(top.green(), bottom.green()),
            mix(top.blue(), bottom.blue())};
}

int difference(const QColor& a, const QColor& b) {
    return std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                     std::abs(a.blue() - b.blue())});
}

}  // namespace

/// The look of each control in each state, in both appearances and both reading directions.
class ControlLookTests : public QObject {
    Q_OBJECT

    MarlevoLook look_;

private Q_SLOTS:
    void aControlIsPaintedInItsState_data() {
        QTest::addColumn<std::size_t>("index");
        QTest::addColumn<bool>("isDark");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        for (std::size_t i = 0; i < cases().size(); ++i)
            for (const bool isDark : {false, true})
                for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft})
                    QTest::addRow("%s, state %d, %s, %s", cases()[i].name, int(cases()[i].state),
                                  isDark ? "dark" : "light",
                                  direction == Qt::LeftToRight ? "left to right" : "right to left")
                        << i << isDark << direction;
    }

    void aControlIsPaintedInItsState() {
        QFETCH(std::size_t, index);
        QFETCH(bool, isDark);
        QFETCH(Qt::LayoutDirection, direction);
        const Case& c = cases()[index];
        QPalette palette;
        palette.setColor(QPalette::Window, isDark ? QColor(40, 40, 40) : QColor(Qt::white));
        QApplication::setPalette(palette);

        QWidget window;
        window.setLayoutDirection(direction);
        window.resize(400, 100);
        auto* const control = c.make();
        control->setParent(&window);
        control->move(50, 30);
        control->resize(control->sizeHint());
        control->setEnabled(c.state != State::disabled);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.setFocus();

        Pointer pointer(*control);
        const QPointF middle = QRectF(control->rect()).center() + QPointF(0.5, 0.5);
        pointer.move({-20, -20});
        if (c.state == State::hover || c.state == State::pressed) pointer.move(middle);
        if (c.state == State::pressed) pointer.press(middle);
        if (c.state == State::focused) control->setFocus(Qt::TabFocusReason);

        const QImage image = window.grab(control->geometry()).toImage();
        const QColor background = window.palette().color(QPalette::Window);
        const auto atColumn = [&](int column) {
            return direction == Qt::LeftToRight ? column : image.width() - 1 - column;
        };
        for (const Probe& probe : c.probes) {
            const int column =
                probe.fromLeading < 0 ? image.width() + probe.fromLeading : probe.fromLeading;
            const QPoint at(atColumn(column), image.height() / 2 + probe.fromMiddle);
            const double opacity = c.state == State::disabled ? opacity::disabled : 1;
            QColor expected = over(probe.expected.color(), probe.expected.opacity, background);
            expected = over(expected, opacity, background);
            const QColor seen = image.pixelColor(at);
            QVERIFY2(difference(seen, expected) <= 4,
                     qPrintable(QStringLiteral("column %1: %2 instead of %3")
                                    .arg(column)
                                    .arg(seen.name(), expected.name())));
        }

        const auto hasInk = [&](int column) {
            for (int y = 0; y < image.height(); ++y)
                if (difference(image.pixelColor(atColumn(column), y), background) > 3) return true;
            return false;
        };
        int first = 0;
        while (first < image.width() && !hasInk(first))
            ++first;
        int last = image.width() - 1;
        while (last > first && !hasInk(last))
            --last;
        const int after = image.width() - 1 - last;
        QVERIFY2(first >= c.leadingGap && first <= c.leadingGap + 2,
                 qPrintable(QString::number(first)));
        QVERIFY2(after >= c.trailingGap && after <= c.trailingGap + 2,
                 qPrintable(QString::number(after)));
        if (c.state == State::pressed) pointer.release({-20, -20});
    }
};

QTEST_MAIN(ControlLookTests)
#include "ControlLookTests.moc"
