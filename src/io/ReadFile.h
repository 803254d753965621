#pragma once

#include "io/PaddedBytes.h"
#include "io/Result.h"

#include <filesystem>

namespace marlevo {

/// The contents of a regular file. Anything else, such as a folder, a pipe or a device, is an
/// error, without waiting. The error's text names the file.
Result<PaddedBytes> readWholeFile(const std::filesystem::path& file);

}  // namespace marlevo
