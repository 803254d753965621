#include "platform/qt/SavePanel.h"

#include "platform/qt/PanelParts.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace marlevo {

SavePanel::SavePanel(const SavePanelRequest& request, QWidget* parent) : QFileDialog(parent) {
    for (const std::string& extension : request.fileType.extensions)
        extensions_ << QString::fromStdString(extension);

    // The dialog's own question looks at the name before our extension is added, and blocks.
    setOptions(DontUseNativeDialog | DontConfirmOverwrite);
    setWindowTitle(QString::fromStdString(request.title));
    setAcceptMode(AcceptSave);
    setLabelText(LookIn, tr("Save in:"));
    setFileMode(AnyFile);
    if (!extensions_.isEmpty()) setNameFilter(nameFilter(request.fileType));
    if (request.folder) setDirectory(QString::fromStdU16String(request.folder->u16string()));
    selectFile(QString::fromStdString(request.proposedName));
}

QString SavePanel::chosenFile() const {
    return QFileInfo(selectedFiles().value(0)).absoluteFilePath();
}

void SavePanel::accept() {
    if (selectedFiles().isEmpty()) return;
    // A folder's name goes into that folder.
    if (QFileInfo(chosenFile()).isDir()) return QFileDialog::accept();

    completeExtension();
    const QFileInfo file(chosenFile());
    if (file.isDir())
        return showRefusal(*this, tr("A folder named “%1” exists.").arg(file.fileName()));
    if (!QFileInfo(file.path()).isDir())
        return showRefusal(*this, tr("The folder “%1” does not exist.").arg(file.path()));
    if (file.exists()) return askToReplace(file.fileName());
    QFileDialog::accept();
}

void SavePanel::completeExtension() {
    if (extensions_.isEmpty() || hasExtension(chosenFile())) return;
    // In the field, so that the name seen is the name written.
    if (auto* nameField = findChild<QLineEdit*>(QStringLiteral("fileNameEdit")))
        nameField->setText(nameField->text() + '.' + extensions_.first());
}

bool SavePanel::hasExtension(const QString& file) const {
    return std::any_of(extensions_.begin(), extensions_.end(), [&](const QString& extension) {
        return file.endsWith('.' + extension, Qt::CaseInsensitive);
    });
}

void SavePanel::askToReplace(const QString& file) {
    auto* question =
        new QMessageBox(QMessageBox::Warning, windowTitle(),
                        tr("“%1” already exists. Do you want to replace it?").arg(file),
                        QMessageBox::NoButton, this);
    QPushButton* const replace = question->addButton(tr("Replace"), QMessageBox::AcceptRole);
    question->addButton(QMessageBox::Cancel);
    question->setDefaultButton(QMessageBox::Cancel);
    question->setAttribute(Qt::WA_DeleteOnClose);
    connect(question, &QMessageBox::finished, this, [this, question, replace] {
        if (question->clickedButton() == replace) QFileDialog::accept();
    });
    question->open();
}

}  // namespace marlevo
