#pragma once

#include <cstddef>
#include <sys/types.h>

namespace marlevo {

/// The system calls that change a file's contents. Tests replace them to record their order or to
/// make one fail; without such a replacement each call is the system's own of that name.
///
/// All return −1 and set errno on an error. They do not repeat a call that a signal interrupts.
class FileCalls {
public:
    virtual ~FileCalls() = default;

    virtual int fallocate(int file, int mode, off_t begin, off_t length) const;
    virtual ssize_t pwrite(int file, const char* from, std::size_t count, off_t at) const;
    virtual int fsync(int file) const;
    virtual int ftruncate(int file, off_t length) const;

    /// True if the file system, by fstatfs(2), never changes a block in place.
    virtual bool copiesOnWrite(int file) const;
};

}  // namespace marlevo
