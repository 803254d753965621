#include "io/WriteFile.h"

#include "io/FileReplacement.h"
#include "platform/WorkQueue.h"

#include <memory>
#include <unistd.h>

namespace marlevo {

std::optional<Failure> WrittenFile::flush() const {
    if (uninterrupted([&] { return ::fsync(descriptor_.get()); }) == 0) return std::nullopt;
    return fileFailure(path_, lastSystemError());
}

Result<WrittenFile> writeWholeFile(const std::filesystem::path& file,
                                   std::span<const std::string_view> pieces) {
    const FileCalls calls;
    FileReplacement replacement(calls);
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
    // Shared only because a std::function must be copyable.
    auto written = std::make_shared<const WrittenFile>(std::move(file));
    queue->post([written, onFailure = std::move(onFailure)] {
        if (const auto failure = written->flush()) onFailure(*failure);
    });
}

}  // namespace marlevo
