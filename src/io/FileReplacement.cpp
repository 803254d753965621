#include "io/FileReplacement.h"

#include <algorithm>
#include <fcntl.h>
#include <linux/falloc.h>
#include <sys/stat.h>
#include <unistd.h>

namespace marlevo {

namespace {

constexpr int openFlags = O_WRONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
constexpr mode_t modeBeforeUmask = 0666;

/// The path after all symbolic links, also when the target of the last one does not exist.
std::filesystem::path linkTarget(std::filesystem::path file) {
    constexpr int mostLinks = 40;
    std::error_code error;
    for (int links = 0; links < mostLinks; ++links) {
        const std::filesystem::path target = std::filesystem::read_symlink(file, error);
        if (error) break;
        file = file.parent_path() / target;
    }
    return file;
}

bool isUnsupported(std::error_code error) {
    return error == std::errc::operation_not_supported ||
           error == std::errc::function_not_supported;
}

std::error_code errorOf(int result) { return result == 0 ? std::error_code() : lastSystemError(); }

off_t lengthOf(std::span<const std::string_view> pieces) {
    off_t length = 0;
    for (const std::string_view piece : pieces)
        length += std::ssize(piece);
    return length;
}

}  // namespace

std::optional<Failure> FileReplacement::open(const std::filesystem::path& path) {
    file_ = FileDescriptor(uninterrupted([&] { return ::open(path.c_str(), openFlags); }));
    if (!file_ && errno == ENOENT) {
        const std::filesystem::path target = linkTarget(path);
        file_ = FileDescriptor(uninterrupted(
            [&] { return ::open(target.c_str(), openFlags | O_CREAT | O_EXCL, modeBeforeUmask); }));
        if (file_) created_ = target;
    }
    // The error for a socket, and for a pipe without a reader.
    if (!file_ && errno == ENXIO) return notRegularFailure(path);

    struct stat status {};
    if (!file_ || ::fstat(file_.get(), &status) != 0) return fileFailure(path, lastSystemError());
    if (!S_ISREG(status.st_mode)) return notRegularFailure(path);
    oldLength_ = status.st_size;

    second_ = FileDescriptor(::fcntl(file_.get(), F_DUPFD_CLOEXEC, 0));
    if (!second_) return fileFailure(path, lastSystemError());
    return std::nullopt;
}

std::error_code FileReplacement::allocate(int mode, off_t begin, off_t length) const {
    if (length == 0) return {};
    return errorOf(
        uninterrupted([&] { return calls_.fallocate(file_.get(), mode, begin, length); }));
}

std::error_code FileReplacement::flush() const {
    return errorOf(uninterrupted([&] { return calls_.fsync(file_.get()); }));
}

std::error_code FileReplacement::truncate(off_t length) const {
    return errorOf(uninterrupted([&] { return calls_.ftruncate(file_.get(), length); }));
}

std::error_code FileReplacement::makeRoom(off_t length) const {
    if (const auto error = allocate(0, 0, length)) return error;
    const off_t overwritten = std::min(length, oldLength_);

    // Writing to blocks that are shared with a copy of the file takes new room.
    const auto unshared = allocate(FALLOC_FL_UNSHARE_RANGE, 0, overwritten);
    if (unshared && !isUnsupported(unshared)) return unshared;

    if (overwritten == 0 || !calls_.copiesOnWrite(file_.get())) return {};
    // Reserved behind the end, then given back just before it is needed. More than the contents,
    // since such systems also write their own records anew.
    constexpr off_t recordsReserve = 32 << 20;
    const off_t end = std::max(length, oldLength_);
    const off_t spareLength = overwritten + recordsReserve;
    const auto spare = allocate(FALLOC_FL_KEEP_SIZE, end, spareLength);
    const auto givenBack = allocate(FALLOC_FL_PUNCH_HOLE | FALLOC_FL_KEEP_SIZE, end, spareLength);
    return spare ? spare : givenBack;
}

std::error_code FileReplacement::writeRange(std::span<const std::string_view> pieces, off_t begin,
                                            off_t end) const {
    off_t pieceBegin = 0;
    for (const std::string_view piece : pieces) {
        const off_t pieceEnd = pieceBegin + std::ssize(piece);
        off_t at = std::max(begin, pieceBegin);
        while (at < std::min(end, pieceEnd)) {
            const auto count = static_cast<std::size_t>(std::min(end, pieceEnd) - at);
            const char* const from = piece.data() + (at - pieceBegin);
            const ssize_t written =
                uninterrupted([&] { return calls_.pwrite(file_.get(), from, count, at); });
            if (written < 0) return lastSystemError();
            if (written == 0) return std::make_error_code(std::errc::no_space_on_device);
            at += written;
        }
        pieceBegin = pieceEnd;
    }
    return {};
}

std::error_code FileReplacement::write(std::span<const std::string_view> pieces) {
    const off_t length = lengthOf(pieces);
    const off_t overwritten = std::min(length, oldLength_);

    std::error_code error = makeRoom(length);
    const bool isReserved = !error;
    if (isUnsupported(error)) error = {};

    if (!error) error = writeRange(pieces, overwritten, length);
    if (!error && !isReserved && overwritten > 0) error = flush();
    if (!error) error = writeRange(pieces, 0, overwritten);
    if (!error && length < oldLength_) error = truncate(length);

    if (error) {
        // The caller gets the first error.
        truncate(oldLength_);
        return error;
    }
    return file_.close();
}

void FileReplacement::undoCreation() {
    std::error_code ignored;
    if (created_) std::filesystem::remove(*created_, ignored);
}

}  // namespace marlevo
