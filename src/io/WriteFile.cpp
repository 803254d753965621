#include "io/WriteFile.h"

#include "platform/WorkQueue.h"

#include <algorithm>
#include <fcntl.h>
#include <linux/falloc.h>
#include <memory>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace marlevo {

namespace {

constexpr int openFlags = O_WRONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
constexpr mode_t modeBeforeUmask = 0666;

/// The file that a path names in the end, also when the last link's target does not exist.
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

/// One file being replaced: what it was before is known until the end.
class Replacement {
public:
    /// Opens the file or creates it; its contents are as before.
    std::optional<Failure> open(const std::filesystem::path& path);

    /// On an error the file has its old length again.
    std::error_code write(std::span<const std::string_view> pieces);

    /// For the flush. Comes from before the closing, whose error counts as one of the writing: some
    /// network file systems tell only then.
    FileDescriptor takeSecondDescriptor() { return std::move(second_); }

    /// Removes the file when it was not there before.
    void undoCreation();

private:
    std::error_code makeRoom(off_t length);
    std::error_code writeRange(std::span<const std::string_view> pieces, off_t begin, off_t end);

    FileDescriptor file_;
    FileDescriptor second_;
    std::optional<std::filesystem::path> created_;
    off_t oldLength_ = 0;
};

std::optional<Failure> Replacement::open(const std::filesystem::path& path) {
    file_ = FileDescriptor(uninterrupted([&] { return ::open(path.c_str(), openFlags); }));
    if (!file_ && errno == ENOENT) {
        const std::filesystem::path target = linkTarget(path);
        file_ = FileDescriptor(uninterrupted(
            [&] { return ::open(target.c_str(), openFlags | O_CREAT | O_EXCL, modeBeforeUmask); }));
        if (file_) created_ = target;
    }
    // What a pipe without a reader and a socket say.
    if (!file_ && errno == ENXIO) return notRegularFailure(path, false);

    struct stat status {};
    if (!file_ || ::fstat(file_.get(), &status) != 0) return fileFailure(path, lastSystemError());
    if (!S_ISREG(status.st_mode)) return notRegularFailure(path, false);
    oldLength_ = status.st_size;

    second_ = FileDescriptor(::fcntl(file_.get(), F_DUPFD_CLOEXEC, 0));
    if (!second_) return fileFailure(path, lastSystemError());
    return std::nullopt;
}

/// The system's fallocate(2) as an error value.
std::error_code allocate(const FileDescriptor& file, int mode, off_t begin, off_t length) {
    if (length == 0) return {};
    const int result = uninterrupted([&] { return ::fallocate(file.get(), mode, begin, length); });
    return result == 0 ? std::error_code() : lastSystemError();
}

bool isUnsupported(std::error_code error) {
    return error == std::errc::operation_not_supported ||
           error == std::errc::function_not_supported;
}

/// True where overwriting a file takes new room, since the system never changes a block in place.
bool copiesOnWrite(const FileDescriptor& file) {
    constexpr std::uint32_t btrfs = 0x9123683E;
    constexpr std::uint32_t bcachefs = 0xCA451A4E;
    constexpr std::uint32_t zfs = 0x2FC12FC1;
    struct statfs system {};
    if (::fstatfs(file.get(), &system) != 0) return false;
    const auto type = static_cast<std::uint32_t>(system.f_type);
    return type == btrfs || type == bcachefs || type == zfs;
}

std::error_code Replacement::makeRoom(off_t length) {
    if (const auto error = allocate(file_, 0, 0, length)) return error;
    const off_t overwritten = std::min(length, oldLength_);

    // Blocks shared with a copy of the file would need room when they are written.
    const auto unshared = allocate(file_, FALLOC_FL_UNSHARE_RANGE, 0, overwritten);
    if (unshared && !isUnsupported(unshared)) return unshared;

    if (overwritten == 0 || !copiesOnWrite(file_)) return {};
    // Reserved behind the end, then given back just before it is needed; more than the file takes,
    // since such systems also write their own records anew.
    constexpr off_t recordsReserve = 32 << 20;
    const off_t end = std::max(length, oldLength_);
    const off_t spareLength = overwritten + recordsReserve;
    const auto spare = allocate(file_, FALLOC_FL_KEEP_SIZE, end, spareLength);
    const auto givenBack =
        allocate(file_, FALLOC_FL_PUNCH_HOLE | FALLOC_FL_KEEP_SIZE, end, spareLength);
    return spare ? spare : givenBack;
}

std::error_code Replacement::writeRange(std::span<const std::string_view> pieces, off_t begin,
                                        off_t end) {
    off_t pieceBegin = 0;
    for (const std::string_view piece : pieces) {
        const off_t pieceEnd = pieceBegin + std::ssize(piece);
        off_t at = std::max(begin, pieceBegin);
        while (at < std::min(end, pieceEnd)) {
            const auto count = static_cast<std::size_t>(std::min(end, pieceEnd) - at);
            const char* const from = piece.data() + (at - pieceBegin);
            const ssize_t written =
                uninterrupted([&] { return ::pwrite(file_.get(), from, count, at); });
            if (written < 0) return lastSystemError();
            if (written == 0) return std::make_error_code(std::errc::no_space_on_device);
            at += written;
        }
        pieceBegin = pieceEnd;
    }
    return {};
}

std::error_code Replacement::write(std::span<const std::string_view> pieces) {
    off_t length = 0;
    for (const std::string_view piece : pieces)
        length += std::ssize(piece);
    const off_t overwritten = std::min(length, oldLength_);

    std::error_code error = makeRoom(length);
    const bool isReserved = !error;
    if (isUnsupported(error)) error = {};

    // What lies behind the old contents comes first: where no room could be reserved, it is on the
    // disk before they are touched.
    if (!error) error = writeRange(pieces, overwritten, length);
    if (!error && !isReserved && overwritten > 0 && ::fsync(file_.get()) != 0)
        error = lastSystemError();
    if (!error) error = writeRange(pieces, 0, overwritten);
    if (!error && length < oldLength_ &&
        uninterrupted([&] { return ::ftruncate(file_.get(), length); }) != 0)
        error = lastSystemError();

    if (error) {
        // The first error is the one to tell.
        [[maybe_unused]] const int ignored =
            uninterrupted([&] { return ::ftruncate(file_.get(), oldLength_); });
        return error;
    }
    return file_.close();
}

void Replacement::undoCreation() {
    std::error_code ignored;
    if (created_) std::filesystem::remove(*created_, ignored);
}

}  // namespace

std::optional<Failure> WrittenFile::flush() const {
    if (uninterrupted([&] { return ::fsync(descriptor_.get()); }) == 0) return std::nullopt;
    return fileFailure(path_, lastSystemError());
}

Result<WrittenFile> writeWholeFile(const std::filesystem::path& file,
                                   std::span<const std::string_view> pieces) {
    Replacement replacement;
    std::optional<Failure> failure = replacement.open(file);
    if (!failure)
        if (const auto error = replacement.write(pieces)) failure = fileFailure(file, error);
    if (failure) {
        replacement.undoCreation();
        return Unexpected(*std::move(failure));
    }
    return WrittenFile(file, replacement.takeSecondDescriptor());
}

Result<WrittenFile> writeWholeFile(const std::filesystem::path& file,
                                   std::span<const std::uint8_t> contents) {
    const std::string_view piece(reinterpret_cast<const char*>(contents.data()), contents.size());
    return writeWholeFile(file, std::span(&piece, 1));
}

void flushBehind(WorkQueue* queue, WrittenFile file,
                 std::function<void(const Failure&)> onFailure) {
    if (queue == nullptr) return;
    // Shared only because the queue's work must be copyable.
    auto written = std::make_shared<const WrittenFile>(std::move(file));
    queue->post([written, onFailure = std::move(onFailure)] {
        if (const auto failure = written->flush()) onFailure(*failure);
    });
}

}  // namespace marlevo
