#include "ui/windows/TextFieldCommands.h"

#include "ui/windows/Commands.h"

#include <QApplication>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>

#include <utility>

namespace marlevo {

namespace {

/// The field that receives typed text; null if no field has the focus or it cannot be edited.
QLineEdit* focusedTextField(const QWidget& window) {
    auto* const field = qobject_cast<QLineEdit*>(window.focusWidget());
    return field && field->isEnabled() && !field->isReadOnly() ? field : nullptr;
}

}  // namespace

TextFieldCommands::TextFieldCommands(QMenu& menu, QWidget& window)
    : QObject(&menu), window_(window) {
    add(menu, tr("Cut"), Qt::CTRL | Qt::Key_X, [](QLineEdit& field) { field.cut(); });
    add(menu, tr("Copy"), Qt::CTRL | Qt::Key_C, [](QLineEdit& field) { field.copy(); });
    add(menu, tr("Paste"), Qt::CTRL | Qt::Key_V, [](QLineEdit& field) { field.paste(); });
    add(menu, tr("Select All"), Qt::CTRL | Qt::Key_A, [](QLineEdit& field) { field.selectAll(); });
    connect(qApp, &QApplication::focusChanged, this, &TextFieldCommands::followFocus);
    followFocus();
}

void TextFieldCommands::add(QMenu& menu, const QString& title, const QKeySequence& shortcut,
                            std::function<void(QLineEdit&)> run) {
    actions_.push_back(&addCommand(menu, title, shortcut, [this, run = std::move(run)] {
        if (QLineEdit* const field = focusedTextField(window_)) run(*field);
    }));
}

void TextFieldCommands::followFocus() {
    const bool hasField = focusedTextField(window_) != nullptr;
    for (QAction* const action : actions_)
        action->setEnabled(hasField);
}

}  // namespace marlevo
