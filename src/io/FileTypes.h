#pragma once

#include "model/ExportFormat.h"
#include "platform/FilePanels.h"
#include "platform/Services.h"

namespace marlevo {

/// What a panel offers for an export in this format, described in the user's language.
FileType fileType(ExportFormat format, const Services& services);

/// What the panels offer for drawings.
FileType documentFileType(const Services& services);

}  // namespace marlevo
