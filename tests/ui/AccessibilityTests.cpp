#include "tests/ui/RunningApp.h"
#include "ui/controls/ColorWell.h"

#include <QAccessible>

using namespace marlevo;

namespace {

/// The accessible objects below a window as "role name", in the order of the tree. Objects of other
/// roles are left out.
QStringList treeOf(QAccessibleInterface& parent) {
    static const QHash<QAccessible::Role, QString> roles{
        {QAccessible::Pane, "pane"},          {QAccessible::Canvas, "canvas"},
        {QAccessible::StatusBar, "status"},   {QAccessible::Dialog, "dialog"},
        {QAccessible::RadioButton, "choice"}, {QAccessible::Graphic, "picture"}};
    QStringList tree;
    for (int i = 0; i < parent.childCount(); ++i) {
        QAccessibleInterface& child = *parent.child(i);
        const QString role = roles.value(child.role());
        if (!role.isEmpty() && !child.state().invisible)
            tree << (role + ' ' + child.text(QAccessible::Name)).trimmed();
        tree << treeOf(child);
    }
    return tree;
}

QStringList treeOf(QWidget& window) {
    return treeOf(*QAccessible::queryAccessibleInterface(&window));
}

QAccessible::State stateOf(QWidget& widget) {
    return QAccessible::queryAccessibleInterface(&widget)->state();
}

}  // namespace

class AccessibilityTests : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theWindowIsReadInItsOrder() {
        RunningApp s;
        control<QAbstractButton>(s.window, "Layers").click();
        QTRY_VERIFY(treeOf(s.window).contains("picture Background"));
        QCOMPARE(treeOf(s.window),
                 QStringList({"pane Sidebar",       "choice Color black",  "choice Color white",
                              "choice Color red",   "choice Color orange", "choice Color yellow",
                              "choice Color green", "choice Color blue",   "choice Color purple",
                              "choice Draw",        "choice Select",       "choice Eraser",
                              "choice Fill",        "choice Drop",         "choice Line",
                              "choice Rectangle",   "choice Ellipse",      "picture Background",
                              "pane Drawing area",  "canvas Canvas",       "status"}));
    }

    void stateAndDescriptionAreThereFromTheBeginning() {
        RunningApp s;
        s.window.content().setFocus();
        QVERIFY(stateOf(s.window.canvasView()).focused);
        const auto stateOfButton = [&](const char* name) {
            return stateOf(control<QAbstractButton>(s.window, name));
        };
        QVERIFY(stateOfButton("Draw").checked && !stateOfButton("Fill").checked);
        // Both are members of one Tab stop.
        QVERIFY(stateOfButton("Draw").focusable && stateOfButton("Fill").focusable);
        QVERIFY(stateOfButton("Export").hasPopup && !stateOfButton("Save").hasPopup);
        QCOMPARE(control<QAbstractButton>(s.window, "Export").accessibleDescription(),
                 "Opens a menu");
        QCOMPARE(control<ColorWell>(s.window, "Color").accessibleDescription(), "#000000");
    }

    void sheetAndPopoverAreDialogs() {
        RunningApp s;
        control<QAbstractButton>(s.window, "Export").click();
        QVERIFY(treeOf(s.window).contains("dialog Export as"));
        s.window.content().setShowNewCanvas(true);
        const QStringList tree = treeOf(s.window);
        const qsizetype sheet = tree.indexOf("dialog New Canvas");
        QVERIFY(sheet >= 0);
        QVERIFY(tree.value(sheet + 1).startsWith("choice "));
    }
};

QTEST_MAIN(AccessibilityTests)
#include "AccessibilityTests.moc"
