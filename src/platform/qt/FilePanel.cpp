#include "platform/qt/FilePanel.h"

#include <QAbstractItemView>
#include <QChildEvent>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTreeView>

#include <algorithm>
#include <pwd.h>

namespace marlevo {

namespace {

// In characters of average width.
constexpr int firstPanelWidth = 115;
constexpr int greatestShownLength = 60;

/// The kind of file as a dialog's filter: "PNG image (*.png)".
QString nameFilter(const FileType& type) {
    QStringList patterns;
    for (const std::string& extension : type.extensions)
        patterns << "*." + QString::fromStdString(extension);
    return QStringLiteral("%1 (%2)").arg(QString::fromStdString(type.description),
                                         patterns.join(' '));
}

std::filesystem::path pathFrom(const QString& name) {
    return QFile::encodeName(name).toStdString();
}

QString textOf(const std::filesystem::path& path) {
    return QFile::decodeName(path.string().c_str());
}

/// A leading "~" or "~user" replaced by that user's home folder, as in a shell.
std::string withHomeFolder(const std::string& name) {
    if (!name.starts_with('~')) return name;
    const std::size_t end = std::min(name.find('/'), name.size());
    const std::string user = name.substr(1, end - 1);
    if (user.empty()) return QDir::homePath().toStdString() + name.substr(end);
    const passwd* const entry = ::getpwnam(user.c_str());
    return entry != nullptr ? entry->pw_dir + name.substr(end) : name;
}

}  // namespace

FilePanel::FilePanel(AcceptMode mode, const std::string& title, const marlevo::FileType& type,
                     QWidget* parent)
    : QFileDialog(parent) {
    // The toolkit's own question precedes the adding of the extension, and it blocks.
    setOptions(DontUseNativeDialog | DontConfirmOverwrite);
    setWindowTitle(QString::fromStdString(title));
    setAcceptMode(mode);
    setFileMode(mode == AcceptOpen ? ExistingFile : AnyFile);
    if (!type.extensions.empty()) setNameFilter(nameFilter(type));

    nameField_ = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    list_ = findChild<QAbstractItemView*>(QStringLiteral("listView"));
    const auto* const buttons = findChild<QDialogButtonBox*>();
    confirmButton_ =
        buttons->button(mode == AcceptOpen ? QDialogButtonBox::Open : QDialogButtonBox::Save);
    // The toolkit reads the field as a list of names in quotes. What it selects and disables during
    // typing is wrong for a name that contains a quote.
    disconnect(nameField_, &QLineEdit::textChanged, this, nullptr);
    connect(nameField_, &QLineEdit::textChanged, this, &FilePanel::nameChanged);
    confirmButton_->installEventFilter(this);
    layOutColumns();
}

/// Everything but the name takes the width of its content.
void FilePanel::layOutColumns() {
    QHeaderView& columns = *findChild<QTreeView*>(QStringLiteral("treeView"))->header();
    columns.setStretchLastSection(false);
    columns.setSectionResizeMode(QHeaderView::ResizeToContents);
    columns.setSectionResizeMode(0, QHeaderView::Stretch);
    const int wanted = std::max(width(), firstPanelWidth * fontMetrics().averageCharWidth());
    resize(std::min(wanted, screen()->availableSize().width()), height());
}

std::filesystem::path FilePanel::chosenFile() const {
    const QModelIndexList rows = list_->selectionModel()->selectedRows();
    if (rows.isEmpty()) return typedFile();
    return pathFrom(rows.first().data(QFileSystemModel::FilePathRole).toString());
}

std::filesystem::path FilePanel::typedFile() const {
    const std::filesystem::path folder = pathFrom(directory().absolutePath());
    const QString text = nameField_->text();
    if (text == textOf(proposedName_)) return folder / proposedName_;
    const std::filesystem::path name = pathFrom(text);
    std::error_code ignored;
    if (std::filesystem::exists(folder / name, ignored)) return (folder / name).lexically_normal();
    return (folder / withHomeFolder(name.string())).lexically_normal();
}

void FilePanel::accept() {
    const std::filesystem::path file = chosenFile();
    std::error_code ignored;
    if (!std::filesystem::is_directory(file, ignored)) return examine(file);
    setDirectory(textOf(file));
    if (acceptMode() == AcceptOpen) nameField_->clear();
}

void FilePanel::proposeName(const std::string& name) {
    proposedName_ = name;
    nameField_->setText(textOf(name));
}

void FilePanel::showRefusal(const QString& reason) {
    auto* message =
        new QMessageBox(QMessageBox::Warning, windowTitle(), reason, QMessageBox::Ok, this);
    message->setAttribute(Qt::WA_DeleteOnClose);
    message->open();
}

QString FilePanel::shownText(const std::filesystem::path& name) const {
    return fontMetrics().elidedText(textOf(name), Qt::ElideMiddle,
                                    greatestShownLength * fontMetrics().averageCharWidth());
}

/// Makes every message over the panel plain text, the toolkit's own too: a name such as "<b>x" is
/// shown as it is.
void FilePanel::childEvent(QChildEvent* event) {
    if (event->polished())
        if (auto* message = qobject_cast<QMessageBox*>(event->child()))
            message->setTextFormat(Qt::PlainText);
    QFileDialog::childEvent(event);
}

/// Keeps the button enabled for every name. A refusal gives the reason, a disabled button does not.
bool FilePanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == confirmButton_ && event->type() == QEvent::EnabledChange &&
        !nameField_->text().isEmpty())
        confirmButton_->setEnabled(true);
    return QFileDialog::eventFilter(watched, event);
}

void FilePanel::nameChanged(const QString& name) {
    QItemSelectionModel& selection = *list_->selectionModel();
    const QModelIndexList rows = selection.selectedRows();
    // The list fills the field with the name of the selected file; any other text was typed.
    if (!rows.isEmpty() && rows.first().data().toString() != name) selection.clearSelection();
    confirmButton_->setEnabled(!name.isEmpty() || selection.hasSelection());
}

}  // namespace marlevo
