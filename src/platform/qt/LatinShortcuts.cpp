#include "platform/qt/LatinShortcuts.h"

#include "platform/qt/KeyboardLayouts.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QWidget>
#include <QWindow>

#include <array>
#include <optional>
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

/// 0 for keys that no shortcut uses.
int usKey(quint32 code) {
    for (const auto& [firstCode, characters] : usKeyboard)
        if (code - firstCode < characters.size()) return characters[code - firstCode];
    return 0;
}

bool isOfAnotherScript(int key) {
    return key > 0xff && key < Qt::Key_Escape &&
           QChar::script(char32_t(key)) != QChar::Script_Latin;
}

/// The number of the layout in use, by the bits of an X11 key event.
quint32 layoutOf(const QKeyEvent& event) { return event.nativeModifiers() >> 13 & 3; }

/// The key that replaces the one of the event; 0 if the event stays as it is.
int latinKey(const QKeyEvent& event) {
    const quint32 code = event.nativeScanCode();
    const bool isShortcut = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
    if (!isShortcut || usKey(code) == 0) return 0;
    const KeyboardLayouts layouts;
    if (layouts.isLatin(layoutOf(event)).value_or(true) && !isOfAnotherScript(event.key()))
        return 0;
    const char character = layouts.latinCharacter(code);
    return character != 0 ? character : usKey(code);
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

    /// With Ctrl, letters have no printable text.
    static QString textOf(int key) {
        return key >= Qt::Key_A && key <= Qt::Key_Z ? QString() : QString(QChar(key));
    }
};

/// The action of the window that has the shortcut, or null.
QAction* actionFor(const QKeyEvent& press, const QObject& window) {
    const QKeySequence keys(press.keyCombination());
    for (const QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->windowHandle() != &window) continue;
        for (QAction* const action : widget->findChildren<QAction*>()) {
            const bool isOfWindow = action->shortcutContext() != Qt::WidgetShortcut;
            if (isOfWindow && action->isEnabled() && action->shortcuts().contains(keys))
                return action;
        }
    }
    return nullptr;
}

struct MenuTitle {
    QMenuBar* bar;
    QAction* action;
};

/// The menu of the window's bar whose underlined letter is pressed with Alt.
std::optional<MenuTitle> menuFor(const QKeyEvent& press, const QObject& window) {
    const QKeySequence keys(press.keyCombination());
    for (const QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->windowHandle() != &window) continue;
        for (QMenuBar* const bar : widget->findChildren<QMenuBar*>())
            for (QAction* const action : bar->actions())
                if (action->isEnabled() && QKeySequence::mnemonic(action->text()) == keys)
                    return MenuTitle{bar, action};
    }
    return std::nullopt;
}

}  // namespace

bool LatinShortcuts::eventFilter(QObject* receiver, QEvent* event) {
    // Events are sent to the window first, then by the window to its widgets.
    if (isPassingOn_ || !receiver->isWindowType()) return false;
    const QEvent::Type type = event->type();
    if (type != QEvent::ShortcutOverride && type != QEvent::KeyPress && type != QEvent::KeyRelease)
        return false;
    const auto& original = static_cast<const QKeyEvent&>(*event);
    const int key = latinKey(original);
    if (key == 0) return false;

    ChangedKeyEvent changed(key, original);
    if (type == QEvent::KeyPress && !isClaimed_) {
        if (QAction* const action = actionFor(changed, *receiver)) {
            if (!changed.isAutoRepeat() || action->autoRepeat()) action->trigger();
            return true;
        }
        if (const auto menu = menuFor(changed, *receiver)) {
            menu->bar->setActiveAction(menu->action);
            return true;
        }
    }
    {
        const QScopedValueRollback passingOn(isPassingOn_, true);
        QCoreApplication::sendEvent(receiver, &changed);
    }
    event->setAccepted(changed.isAccepted());
    if (type == QEvent::ShortcutOverride) {
        isClaimed_ = changed.isAccepted();
        // Accepted, so that Qt does not run a shortcut of the original key.
        if (actionFor(changed, *receiver) != nullptr || menuFor(changed, *receiver))
            event->accept();
    }
    return true;
}

}  // namespace marlevo
