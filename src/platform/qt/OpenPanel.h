#pragma once

#include "platform/FilePanels.h"

#include <QFileDialog>

namespace marlevo {

/// Asks for one existing file. The same on every desktop: the toolkit's own dialog, not the
/// platform's.
class OpenPanel final : public QFileDialog {
    Q_OBJECT

public:
    OpenPanel(const OpenPanelRequest& request, QWidget* parent);

    /// Stays open for a name that no file has; goes into a folder.
    void accept() override;
};

}  // namespace marlevo
