#pragma once

#include "platform/FilePanels.h"

#include <QFileDialog>

#include <filesystem>
#include <string>

class QAbstractButton;
class QAbstractItemView;
class QLineEdit;

namespace marlevo {

/// What the panels for opening and for saving share: the toolkit's own dialog, the same on every
/// desktop. The whole text of its name field is one file name, with any character but "/".
class FilePanel : public QFileDialog {
    Q_OBJECT

public:
    /// What is selected in the list, or else what the name field names. The names are the bytes of
    /// the file system.
    std::filesystem::path chosenFile() const;

    /// Shows the contents of a chosen folder; examines any other choice.
    void accept() override;

protected:
    FilePanel(AcceptMode mode, const std::string& title, const marlevo::FileType& type,
              QWidget* parent);

    QLineEdit& nameField() const { return *nameField_; }

    /// Puts a name into the field. As long as the field is unchanged, the name is these bytes, also
    /// where they are not UTF-8.
    void proposeName(const std::string& name);

    /// Calls finish() or showRefusal(), now or later. `file` is not a folder.
    virtual void examine(const std::filesystem::path& file) = 0;

    void finish() { done(Accepted); }

    /// Shows over the panel, without blocking, why a file cannot be chosen.
    void showRefusal(const QString& reason);

    /// The text of a name or a path in a message: long ones are shortened in the middle.
    QString shownText(const std::filesystem::path& name) const;

    void childEvent(QChildEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void layOutColumns();
    std::filesystem::path typedFile() const;
    void nameChanged(const QString& name);

    QLineEdit* nameField_;
    QAbstractButton* confirmButton_;
    QAbstractItemView* list_;
    std::string proposedName_;
};

}  // namespace marlevo
