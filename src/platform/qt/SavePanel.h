#pragma once

#include "platform/qt/FilePanel.h"

namespace marlevo {

/// Asks where to save. A missing extension is added to the name, then an existing file is replaced
/// only when the user agrees.
class SavePanel final : public FilePanel {
    Q_OBJECT

public:
    SavePanel(const SavePanelRequest& request, QWidget* parent);

private:
    void examine(const std::filesystem::path& file) override;
    void examineWhole(const std::filesystem::path& file);
    bool hasExtension(const std::filesystem::path& file) const;
    void askToReplace(const std::filesystem::path& file);

    QStringList extensions_;
};

}  // namespace marlevo
