#include "ui/windows/TextFieldCommands.h"

#include "ui/controls/TextFieldFocus.h"

#include <QApplication>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>

#include <utility>

namespace marlevo {

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
    QAction* const action = menu.addAction(title);
    action->setShortcut(shortcut);
    action->setAutoRepeat(false);
    connect(action, &QAction::triggered, this, [this, run = std::move(run)] {
        if (QLineEdit* const field = focusedTextField(window_)) run(*field);
    });
    actions_.push_back(action);
}

void TextFieldCommands::followFocus() {
    const bool hasField = focusedTextField(window_) != nullptr;
    for (QAction* const action : actions_)
        action->setEnabled(hasField);
}

}  // namespace marlevo
