#include "platform/qt/SavePanel.h"

#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace marlevo {

namespace {

/// The folder, or the nearest folder above it whose path is UTF-8: the toolkit shows no others.
QString folderToShow(std::filesystem::path folder) {
    while (QFile::encodeName(QFile::decodeName(folder.c_str())) != folder.c_str())
        folder = folder.parent_path();
    return QFile::decodeName(folder.c_str());
}

}  // namespace

SavePanel::SavePanel(const SavePanelRequest& request, QWidget* parent)
    : FilePanel(AcceptSave, request.title, request.fileType, parent) {
    for (const std::string& extension : request.fileType.extensions)
        extensions_ << QString::fromStdString(extension);
    setLabelText(LookIn, tr("Save in:"));
    if (request.folder) setDirectory(folderToShow(*request.folder));
    proposeName(request.proposedName);
}

void SavePanel::examine(const std::filesystem::path& file) {
    if (hasExtension(file)) return examineWhole(file);
    // Added in the field, so that the user sees the name that is written.
    nameField().setText(nameField().text() + '.' + extensions_.first());
    examineWhole(chosenFile());
}

void SavePanel::examineWhole(const std::filesystem::path& file) {
    const QString name = shownText(file.filename());
    std::error_code error;
    if (!std::filesystem::is_directory(file.parent_path(), error))
        return showRefusal(
            tr("The folder “%1” does not exist.").arg(shownText(file.parent_path())));
    const std::filesystem::file_status status = std::filesystem::status(file, error);
    if (error == std::errc::filename_too_long)
        return showRefusal(tr("The name “%1” is too long.").arg(name));
    if (std::filesystem::is_directory(status))
        return showRefusal(tr("A folder named “%1” exists.").arg(name));
    if (std::filesystem::exists(status)) return askToReplace(file);
    finish();
}

bool SavePanel::hasExtension(const std::filesystem::path& file) const {
    const QString name = QFile::decodeName(file.c_str());
    return extensions_.isEmpty() ||
           std::any_of(extensions_.begin(), extensions_.end(), [&](const QString& extension) {
               return name.endsWith('.' + extension, Qt::CaseInsensitive);
           });
}

void SavePanel::askToReplace(const std::filesystem::path& file) {
    auto* question = new QMessageBox(
        QMessageBox::Warning, windowTitle(),
        tr("“%1” already exists. Do you want to replace it?").arg(shownText(file.filename())),
        QMessageBox::NoButton, this);
    QPushButton* const replace = question->addButton(tr("&Replace"), QMessageBox::AcceptRole);
    question->setDefaultButton(question->addButton(tr("&Cancel"), QMessageBox::RejectRole));
    question->setAttribute(Qt::WA_DeleteOnClose);
    connect(question, &QMessageBox::finished, this, [this, question, replace] {
        if (question->clickedButton() == replace) finish();
    });
    question->open();
}

}  // namespace marlevo
