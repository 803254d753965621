#pragma once

#include "platform/qt/KeyRepeats.h"

#include <QObject>

#include <functional>

class QKeyEvent;
class QWidget;

namespace marlevo {

class DrawingDocument;

/// Handles keys of a document window before its menus and controls do. Filters all keys of the
/// application and acts on those of its own window while that has the focus; keys of panels,
/// alerts, menus and other windows pass. In this order:
///
/// 1. A repeat of a held key passes.
/// 2. With Ctrl, by the letter that the key makes with Shift but without Ctrl and Caps Lock: "z"
///    undoes, with Shift redoes; "e" toggles the eraser and leaves the select tool; "n" shows the
///    new-canvas sheet; "g" toggles the grid.
/// 3. Ctrl with "=" zooms in; so does Ctrl with "+", which is the same key on a US keyboard.
/// 4. Ctrl with "-" zooms out.
/// 5. Backspace and Delete, whatever the modifiers, delete the selected stroke while the select
///    tool is chosen and a stroke is selected; else they pass.
/// 6. Everything else passes.
///
/// While the sheet covers the window, no key changes the document, and keys that edit text pass to
/// the sheet's fields.
class KeyMonitor final : public QObject {
public:
    /// The window's new-canvas sheet.
    struct Sheet {
        std::function<void()> show;
        std::function<bool()> isShown;
    };

    /// The document and the window must outlive the monitor. It filters events until it is
    /// destroyed.
    KeyMonitor(QWidget& window, DrawingDocument& document, Sheet newCanvas);

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    using Action = std::function<void()>;

    /// The action of the press; empty if the press passes.
    Action actionOf(const QKeyEvent& press) const;
    Action controlActionOf(const QKeyEvent& press) const;

    void toggleEraser() const;

    QWidget& window_;
    DrawingDocument& document_;
    Sheet newCanvas_;
    KeyRepeats repeats_;
};

}  // namespace marlevo
