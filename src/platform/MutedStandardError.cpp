#include "platform/MutedStandardError.h"

#include <cstdio>
#include <unistd.h>

namespace marlevo {

namespace {

thread_local int muted = 0;

ssize_t writeUnlessMuted(void*, const char* bytes, std::size_t size) {
    if (muted > 0) return static_cast<ssize_t>(size);
    const ssize_t written = ::write(STDERR_FILENO, bytes, size);
    return written < 0 ? 0 : written;
}

/// If no stream can be allocated, nothing is muted.
bool replaceStandardError() {
    cookie_io_functions_t functions{};
    functions.write = writeUnlessMuted;
    std::FILE* const stream = ::fopencookie(nullptr, "w", functions);
    if (stream == nullptr) return false;
    std::setvbuf(stream, nullptr, _IONBF, 0);
    stderr = stream;
    return true;
}

}  // namespace

MutedStandardError::MutedStandardError() {
    [[maybe_unused]] static const bool isReplaced = replaceStandardError();
    ++muted;
}

MutedStandardError::~MutedStandardError() { --muted; }

}  // namespace marlevo
