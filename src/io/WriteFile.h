#pragma once

#include "io/FileDescriptor.h"
#include "io/Result.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string_view>

namespace marlevo {

class WorkQueue;

/// A file whose new contents the system has, but perhaps not yet the disk.
class WrittenFile {
public:
    WrittenFile(std::filesystem::path path, FileDescriptor descriptor)
        : path_(std::move(path)), descriptor_(std::move(descriptor)) {}

    /// Waits until the contents are on the disk; the reason when they could not be brought there.
    std::optional<Failure> flush() const;

private:
    std::filesystem::path path_;
    FileDescriptor descriptor_;
};

/// Replaces the contents of a file by the pieces in their order, or creates the file.
///
/// In place: the file stays the same one, with its owner, its permissions and its links, hard and
/// symbolic. Room for the new contents is made before the old ones are touched: on a full disk, at
/// the end of a quota or where writing is not allowed, the old contents stay as they were, and a
/// file that was not there before is not there after. (When the disk itself fails in the middle of
/// the writing, a partly written file may remain.) The time is that of handing the bytes to the
/// system; on file systems that cannot reserve room, that of writing the growth to the disk too.
///
/// Only regular files are written: a folder, a pipe or a device is an error at once. The error's
/// text names the file. A limit on file size is an error only in a program that ignores SIGXFSZ.
Result<WrittenFile> writeWholeFile(const std::filesystem::path& file,
                                   std::span<const std::string_view> pieces);

/// The same for contents in one piece.
Result<WrittenFile> writeWholeFile(const std::filesystem::path& file,
                                   std::span<const std::uint8_t> contents);

/// Has the file flushed on the queue, after those before it; the caller goes on at once.
/// `onFailure` is called on the queue's thread. Without a queue it is left to the system when to
/// flush.
void flushBehind(WorkQueue* queue, WrittenFile file, std::function<void(const Failure&)> onFailure);

}  // namespace marlevo
