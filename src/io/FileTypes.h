#pragma once

#include "model/ExportFormat.h"
#include "platform/FilePanels.h"

namespace marlevo {

/// What a panel offers for an export in this format.
FileType fileType(ExportFormat format);

/// What the panels offer for drawings.
FileType documentFileType();

}  // namespace marlevo
