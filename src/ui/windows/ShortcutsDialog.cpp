#include "ui/windows/ShortcutsDialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace marlevo {

namespace {

constexpr QSize preferredSize(420, 520);

/// Where titles have no Latin letters the mnemonic is appended: "ファイル(&F)".
QString withoutMnemonic(QString title) {
    static const QRegularExpression appended(QStringLiteral("\\(&.\\)"));
    return title.remove(appended).remove('&');
}

/// Each of the keys runs the command.
void addKeys(QTreeWidgetItem& section, const QString& title, const QList<QKeySequence>& keys) {
    new QTreeWidgetItem(&section,
                        {title, QKeySequence::listToString(keys, QKeySequence::NativeText)});
}

}  // namespace

ShortcutsDialog::ShortcutsDialog(const QMenuBar& menus, QWidget* parent)
    : QDialog(parent), list_(new QTreeWidget) {
    setWindowTitle(tr("Keyboard Shortcuts"));
    list_->setAccessibleName(windowTitle());
    list_->setColumnCount(2);
    list_->setHeaderLabels({tr("Command"), tr("Keys")});
    list_->setRootIsDecorated(false);
    list_->setItemsExpandable(false);
    list_->setSelectionMode(QAbstractItemView::SingleSelection);
    list_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    list_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    list_->header()->setStretchLastSection(false);

    for (const QAction* const action : menus.actions())
        addMenu(*addSection(withoutMnemonic(action->text())), *action->menu());
    addKeysWithoutMenuItem();
    list_->expandAll();

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(list_);
    column->addWidget(buttons);
    resize(preferredSize);
}

QTreeWidgetItem* ShortcutsDialog::addSection(const QString& title) {
    auto* section = new QTreeWidgetItem(list_, {title});
    section->setFirstColumnSpanned(true);
    QFont bold = list_->font();
    bold.setBold(true);
    section->setFont(0, bold);
    return section;
}

void ShortcutsDialog::addMenu(QTreeWidgetItem& section, const QMenu& menu) {
    for (const QAction* const action : menu.actions()) {
        if (!action->shortcut().isEmpty())
            addKeys(section, withoutMnemonic(action->text()), action->shortcuts());
        if (action->menu() != nullptr) addMenu(section, *action->menu());
    }
}

void ShortcutsDialog::addKeysWithoutMenuItem() {
    QTreeWidgetItem& section = *addSection(tr("Tools and View"));
    addKeys(section, tr("Eraser"), {Qt::CTRL | Qt::Key_E});
    addKeys(section, tr("Zoom In"), {Qt::CTRL | Qt::Key_Equal});
    addKeys(section, tr("Zoom Out"), {Qt::CTRL | Qt::Key_Minus});
    addKeys(section, tr("Delete Selected Stroke"), {Qt::Key_Delete, Qt::Key_Backspace});
}

}  // namespace marlevo
