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

/// A file whose new contents have been written, but perhaps not flushed to the disk.
class WrittenFile {
public:
    WrittenFile(std::filesystem::path path, FileDescriptor descriptor)
        : path_(std::move(path)), descriptor_(std::move(descriptor)) {}

    /// Waits until the contents are on the disk. Returns the reason if that fails.
    std::optional<Failure> flush() const;

private:
    std::filesystem::path path_;
    FileDescriptor descriptor_;
};

/// Replaces the contents of a file by the pieces in their order, or creates the file.
///
/// In place: owner, permissions, hard links and symbolic links of the file stay. Room for the new
/// contents is reserved before an old byte is overwritten (FileReplacement.h). On a full disk, at
/// the limit of a quota or without the right to write, the old contents remain, and no new file is
/// left. (If the disk itself fails during the writing, a partly written file can remain.) A file
/// system that never overwrites in place needs room for a second copy.
///
/// Returns when the system has the bytes. Only on file systems that cannot reserve room it waits
/// until the growth is on the disk.
///
/// Only regular files are written. Anything else, such as a folder, a pipe or a device, is an
/// error, without waiting. The error's text names the file. A limit on file size is an error only
/// if the program ignores SIGXFSZ.
Result<WrittenFile> writeWholeFile(const std::filesystem::path& file,
                                   std::span<const std::string_view> pieces);

/// Overload for contents in one piece.
Result<WrittenFile> writeWholeFile(const std::filesystem::path& file,
                                   std::span<const std::uint8_t> contents);

/// Flushes the file on the queue's thread, after the work posted before, and calls `onFailure`
/// there if that fails. Returns at once. With a null queue the system decides when to flush.
void flushBehind(WorkQueue* queue, WrittenFile file, std::function<void(const Failure&)> onFailure);

}  // namespace marlevo
