#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace marlevo {

/// The path in a file's address (RFC 8089), such as "file:///home/me/a%20b.marlevo", byte for byte.
/// Nothing for other texts, for files of other machines, and where no path can be made.
std::optional<std::filesystem::path> pathOfFileAddress(std::string_view address);

}  // namespace marlevo
