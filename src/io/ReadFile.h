#pragma once

#include "io/PaddedBytes.h"
#include "io/Result.h"

#include <filesystem>

namespace marlevo {

/// The contents of a file. Only regular files are read: a folder, a pipe or a device is an error at
/// once, never a wait. The error's text names the file.
Result<PaddedBytes> readWholeFile(const std::filesystem::path& file);

}  // namespace marlevo
