#pragma once

#include "io/Result.h"

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

namespace marlevo {

/// Owns an open file of the system.
class FileDescriptor {
public:
    FileDescriptor() = default;
    /// A negative number means that there is no file.
    explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
    ~FileDescriptor() { close(); }
    FileDescriptor(FileDescriptor&& other) noexcept
        : descriptor_(std::exchange(other.descriptor_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }

    explicit operator bool() const { return descriptor_ >= 0; }
    int get() const { return descriptor_; }

    /// Closes the file, also when it returns an error, which may belong to an earlier write.
    std::error_code close();

private:
    int descriptor_ = -1;
};

/// The reason why the last system call of this thread failed.
inline std::error_code lastSystemError() { return {errno, std::generic_category()}; }

/// Repeats a system call for as long as signals interrupt it.
template <typename Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

/// "/folder/file: No space left on device"
Failure fileFailure(const std::filesystem::path& file, std::error_code error);

/// "/folder/file: Cannot allocate memory"
Failure outOfMemoryFailure(const std::filesystem::path& file);

/// "/folder: Is a directory"
Failure folderFailure(const std::filesystem::path& folder);

/// "/folder/pipe: Not a regular file", for a device, a pipe or a socket.
Failure notRegularFailure(const std::filesystem::path& file);

}  // namespace marlevo
