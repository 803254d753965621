#include "io/FileDescriptor.h"

#include <unistd.h>

namespace marlevo {

std::error_code FileDescriptor::close() {
    const int descriptor = std::exchange(descriptor_, -1);
    // Not repeated after a signal, because the system has already released the descriptor.
    if (descriptor < 0 || ::close(descriptor) == 0 || errno == EINTR) return {};
    return lastSystemError();
}

Failure fileFailure(const std::filesystem::path& file, std::error_code error) {
    return {file.string() + ": " + error.message()};
}

Failure outOfMemoryFailure(const std::filesystem::path& file) {
    return fileFailure(file, std::make_error_code(std::errc::not_enough_memory));
}

Failure folderFailure(const std::filesystem::path& folder) {
    return fileFailure(folder, std::make_error_code(std::errc::is_a_directory));
}

Failure notRegularFailure(const std::filesystem::path& file) {
    return {file.string() + ": Not a regular file"};
}

}  // namespace marlevo
