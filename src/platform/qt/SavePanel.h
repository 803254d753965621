#pragma once

#include "platform/FilePanels.h"

#include <QFileDialog>

namespace marlevo {

/// Asks where to save. The same on every desktop: the toolkit's own dialog, not the platform's.
class SavePanel final : public QFileDialog {
    Q_OBJECT

public:
    SavePanel(const SavePanelRequest& request, QWidget* parent);

    /// The full name of the file to write, with its extension.
    QString chosenFile() const;

    /// Adds a missing extension to the name typed, then asks before an existing file is replaced.
    void accept() override;

private:
    void completeExtension();
    bool hasExtension(const QString& file) const;
    void askToReplace(const QString& file);

    QStringList extensions_;
};

}  // namespace marlevo
