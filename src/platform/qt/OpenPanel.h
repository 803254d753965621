#pragma once

#include "platform/qt/FilePanel.h"

namespace marlevo {

/// Asks for one existing file.
class OpenPanel final : public FilePanel {
    Q_OBJECT

public:
    OpenPanel(const OpenPanelRequest& request, QWidget* parent);

private:
    void examine(const std::filesystem::path& file) override;
};

}  // namespace marlevo
