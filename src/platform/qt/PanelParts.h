#pragma once

#include "platform/FilePanels.h"

#include <QFileDialog>

namespace marlevo {

/// The kind of file as a dialog's filter: "PNG image (*.png)".
QString nameFilter(const FileType& type);

/// Tells over the panel why a file cannot be chosen. The toolkit's own message would block.
void showRefusal(QFileDialog& panel, const QString& reason);

}  // namespace marlevo
