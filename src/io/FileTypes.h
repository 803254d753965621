#pragma once

#include "model/ExportFormat.h"
#include "platform/FilePanels.h"
#include "platform/Services.h"

namespace marlevo {

/// The file type of an export in this format, with its description in the user's language.
FileType fileType(ExportFormat format, const Services& services);

/// The file type of drawings, with its description in the user's language.
FileType documentFileType(const Services& services);

}  // namespace marlevo
