#include "io/ReadFile.h"

#include "io/FileDescriptor.h"

#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <unistd.h>

namespace marlevo {

namespace {

/// Fills `room` unless the file ends before. Returns the number of bytes read, or −1 with errno
/// set.
ssize_t readInto(std::span<std::uint8_t> room, const FileDescriptor& file) {
    std::size_t done = 0;
    while (done < room.size()) {
        const ssize_t count = uninterrupted(
            [&] { return ::read(file.get(), room.data() + done, room.size() - done); });
        if (count < 0) return -1;
        if (count == 0) break;
        done += static_cast<std::size_t>(count);
    }
    return static_cast<ssize_t>(done);
}

}  // namespace

Result<PaddedBytes> readWholeFile(const std::filesystem::path& path) {
    // O_NONBLOCK, because opening a pipe waits for its writer.
    const FileDescriptor file(uninterrupted(
        [&] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY); }));
    struct stat status {};
    if (!file || ::fstat(file.get(), &status) != 0)
        return Unexpected(fileFailure(path, lastSystemError()));
    if (S_ISDIR(status.st_mode)) return Unexpected(folderFailure(path));
    if (!S_ISREG(status.st_mode)) return Unexpected(notRegularFailure(path));

    const auto size = static_cast<std::size_t>(status.st_size);
    try {
        PaddedBytes contents(size);
        std::uint8_t beyond = 0;
        const ssize_t count = readInto(contents.span(), file);
        const ssize_t more = count < 0 ? -1 : readInto({&beyond, 1}, file);
        if (more < 0) return Unexpected(fileFailure(path, lastSystemError()));
        if (static_cast<std::size_t>(count) != size || more != 0)
            return Unexpected(Failure{path.string() + ": The file changed while it was read"});
        return contents;
    } catch (const std::bad_alloc&) {
        return Unexpected(outOfMemoryFailure(path));
    }
}

}  // namespace marlevo
