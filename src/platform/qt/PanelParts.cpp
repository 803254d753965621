#include "platform/qt/PanelParts.h"

#include <QMessageBox>

namespace marlevo {

QString nameFilter(const FileType& type) {
    QStringList patterns;
    for (const std::string& extension : type.extensions)
        patterns << "*." + QString::fromStdString(extension);
    return QStringLiteral("%1 (%2)").arg(QString::fromStdString(type.description),
                                         patterns.join(' '));
}

void showRefusal(QFileDialog& panel, const QString& reason) {
    auto* message =
        new QMessageBox(QMessageBox::Warning, panel.windowTitle(), reason, QMessageBox::Ok, &panel);
    message->setAttribute(Qt::WA_DeleteOnClose);
    message->open();
}

}  // namespace marlevo
