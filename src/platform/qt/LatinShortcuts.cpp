#include "platform/qt/LatinShortcuts.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>

#include <array>
#include <string_view>

namespace marlevo {

namespace {

/// Neighbouring keys of a US keyboard.
struct Keys {
    quint32 firstCode;
    std::string_view characters;
};

constexpr std::array usKeyboard{Keys{20, "-="}, Keys{24, "QWERTYUIOP"}, Keys{38, "ASDFGHJKL"},
                                Keys{52, "ZXCVBNM,"}};

bool isOfAnotherScript(int key) {
    return key > 0xff && key < Qt::Key_Escape && QChar::script(char32_t(key)) != QChar::Script_Latin;
}

/// 0 when the press needs no other key.
int latinKey(const QKeyEvent& press) {
    if (!press.modifiers().testFlag(Qt::ControlModifier) || !isOfAnotherScript(press.key()))
        return 0;
    for (const auto& [firstCode, characters] : usKeyboard) {
        const quint32 place = press.nativeScanCode() - firstCode;
        if (place < characters.size()) return characters[place];
    }
    return 0;
}

/// The same event of another key.
struct ChangedKeyEvent : QKeyEvent {
    ChangedKeyEvent(int key, const QKeyEvent& event)
        : QKeyEvent(event.type(), key, event.modifiers(), event.nativeScanCode(),
                    event.nativeVirtualKey(), event.nativeModifiers(), textOf(key),
                    event.isAutoRepeat(), quint16(event.count()), event.device()) {
        setTimestamp(event.timestamp());
        if (type() == ShortcutOverride) ignore();
    }

    /// Ctrl makes letters control characters.
    static QString textOf(int key) {
        return key >= Qt::Key_A && key <= Qt::Key_Z ? QString() : QString(QChar(key));
    }
};

bool isTriggeredBy(const QAction& action, const QKeySequence& keys) {
    return action.isEnabled() && action.shortcutContext() != Qt::WidgetShortcut &&
           action.shortcuts().contains(keys);
}

/// Whether an action of the window has the shortcut; it is triggered.
bool runShortcut(const QWindow& window, const QKeyEvent& press) {
    const QKeySequence keys(press.keyCombination());
    for (const QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->windowHandle() != &window) continue;
        for (QAction* const action : widget->findChildren<QAction*>()) {
            if (!isTriggeredBy(*action, keys)) continue;
            action->trigger();
            return true;
        }
    }
    return false;
}

}  // namespace

bool LatinShortcuts::eventFilter(QObject* receiver, QEvent* event) {
    // A window gets each event first, then hands it on to its widgets.
    if (!receiver->isWindowType()) return false;
    const QEvent::Type type = event->type();
    if (type != QEvent::ShortcutOverride && type != QEvent::KeyPress && type != QEvent::KeyRelease)
        return false;
    const auto& original = static_cast<const QKeyEvent&>(*event);
    const int key = latinKey(original);
    if (key == 0) return false;

    ChangedKeyEvent changed(key, original);
    if (type == QEvent::KeyPress && !isClaimed_ &&
        runShortcut(static_cast<const QWindow&>(*receiver), changed))
        return true;
    QCoreApplication::sendEvent(receiver, &changed);
    if (type == QEvent::ShortcutOverride) isClaimed_ = changed.isAccepted();
    event->setAccepted(changed.isAccepted());
    return true;
}

}  // namespace marlevo
