#include "ui/windows/HelpMenu.h"

#include "ui/controls/Icons.h"
#include "ui/windows/Commands.h"
#include "ui/windows/ShortcutsDialog.h"

#include <QApplication>
#include <QMenuBar>
#include <QMessageBox>

namespace marlevo {

HelpMenu::HelpMenu(QMenuBar& menus) : QMenu(tr("&Help"), &menus) {
    addCommand(*this, tr("Keyboard Shortcuts"), Qt::Key_F1,
               [this, &menus] { showShortcuts(menus); });
    addSeparator();
    addAction(tr("About Marlevo"), this, &HelpMenu::showAbout);
}

void HelpMenu::showShortcuts(const QMenuBar& menus) {
    auto* dialog = new ShortcutsDialog(menus, menus.window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void HelpMenu::showAbout() {
    auto* about = new QMessageBox(parentWidget()->window());
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->setWindowTitle(tr("About Marlevo"));
    about->setIconPixmap(applicationIcon().pixmap(64));
    about->setText(QStringLiteral("<b>%1</b>").arg(tr("Marlevo")));
    about->setInformativeText(tr("Version %1").arg(QApplication::applicationVersion()) +
                              QLatin1String("<br>") +
                              tr("Draw with the mouse: strokes, shapes and layers."));
    about->setStandardButtons(QMessageBox::Close);
    about->open();
}

}  // namespace marlevo
