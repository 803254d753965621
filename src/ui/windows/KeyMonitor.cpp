#include "ui/windows/KeyMonitor.h"

#include "model/DrawingDocument.h"
#include "tools/Selection.h"
#include "ui/canvas/CanvasZoom.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace marlevo {

namespace {

/// The Latin letter of the key with Shift but without Ctrl and Caps Lock; 0 if the key has none.
char32_t letterIgnoringModifiers(const QKeyEvent& press) {
    if (press.key() < Qt::Key_A || press.key() > Qt::Key_Z) return 0;
    const bool isUpper = press.modifiers().testFlag(Qt::ShiftModifier);
    return char32_t(press.key() - Qt::Key_A) + (isUpper ? U'A' : U'a');
}

bool showsNewCanvas(const QKeyEvent& press) {
    return press.modifiers().testFlag(Qt::ControlModifier) &&
           letterIgnoringModifiers(press) == U'n';
}

bool isDelete(const QKeyEvent& press) {
    return press.key() == Qt::Key_Backspace || press.key() == Qt::Key_Delete;
}

}  // namespace

KeyMonitor::KeyMonitor(QWidget& window, DrawingDocument& document, Sheet newCanvas)
    : window_(window), document_(document), newCanvas_(std::move(newCanvas)) {
    qApp->installEventFilter(this);
}

bool KeyMonitor::eventFilter(QObject* receiver, QEvent* event) {
    // A window receives each event before its widgets do.
    if (!receiver->isWindowType()) return false;
    if (event->type() == QEvent::KeyRelease) {
        repeats_.release(static_cast<const QKeyEvent&>(*event));
        return false;
    }
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    if (!isOverride && event->type() != QEvent::KeyPress) return false;
    if (receiver != window_.windowHandle() || QApplication::activePopupWidget() != nullptr)
        return false;

    const Action action = actionOf(static_cast<const QKeyEvent&>(*event));
    if (!action) return false;
    // ShortcutOverride is sent before shortcuts run. Accepting it prevents them, and the press
    // itself follows.
    event->accept();
    if (!isOverride) action();
    return true;
}

KeyMonitor::Action KeyMonitor::actionOf(const QKeyEvent& press) const {
    if (repeats_.isRepeat(press)) return {};
    if (newCanvas_.isShown()) return showsNewCanvas(press) ? newCanvas_.show : Action();
    if (press.modifiers().testFlag(Qt::ControlModifier)) {
        if (Action action = controlActionOf(press)) return action;
        if (press.text() == u'=' || press.text() == u'+')
            return [this] { document_.zoom = zoomedIn(document_.zoom); };
        if (press.text() == u'-') return [this] { document_.zoom = zoomedOut(document_.zoom); };
    }
    const bool deletesStroke =
        isDelete(press) && document_.isSelectTool && document_.selectedStrokeIndex->has_value();
    if (deletesStroke) return [this] { deleteSelectedStroke(document_); };
    return {};
}

KeyMonitor::Action KeyMonitor::controlActionOf(const QKeyEvent& press) const {
    switch (letterIgnoringModifiers(press)) {
    case U'z':
        if (press.modifiers().testFlag(Qt::ShiftModifier)) return [this] { document_.redo(); };
        return [this] { document_.undo(); };
    case U'e':
        return [this] { toggleEraser(); };
    case U'n':
        return newCanvas_.show;
    case U'g':
        return [this] { document_.showGrid = !document_.showGrid; };
    default:
        return {};
    }
}

void KeyMonitor::toggleEraser() const {
    document_.isEraser = !document_.isEraser;
    document_.isSelectTool = false;
    document_.clearSelection();
}

}  // namespace marlevo
