#pragma once

#include "io/FileCalls.h"
#include "io/FileDescriptor.h"

#include <filesystem>
#include <optional>
#include <span>
#include <string_view>

namespace marlevo {

/// Replaces the contents of one file in place, so that on a full disk the old contents remain.
class FileReplacement {
public:
    /// `calls` must outlive this object.
    explicit FileReplacement(const FileCalls& calls) : calls_(calls) {}

    /// Opens the file or creates it. The contents are as before.
    std::optional<Failure> open(const std::filesystem::path& path);

    /// Writes the pieces, one after the other, and closes the file. After an error the file has its
    /// old length. Only after open() without a failure.
    ///
    /// Order: room for the new contents is reserved and shared blocks are unshared; then the part
    /// behind the old end is written, then the part that overwrites old bytes. Where no room can be
    /// reserved, the first part is flushed to the disk before the second is begun.
    std::error_code write(std::span<const std::string_view> pieces);

    /// A second descriptor of the open file, for a flush after write(). It is made by open(),
    /// because an error of closing the first one counts as an error of the writing: some network
    /// file systems report such errors only then.
    FileDescriptor takeSecondDescriptor() { return std::move(second_); }

    /// Removes the file if open() created it.
    void undoCreation();

private:
    std::error_code allocate(int mode, off_t begin, off_t length) const;
    std::error_code makeRoom(off_t length) const;
    std::error_code writeRange(std::span<const std::string_view> pieces, off_t begin,
                               off_t end) const;
    std::error_code flush() const;
    std::error_code truncate(off_t length) const;

    const FileCalls& calls_;
    FileDescriptor file_;
    FileDescriptor second_;
    std::optional<std::filesystem::path> created_;
    off_t oldLength_ = 0;
};

}  // namespace marlevo
