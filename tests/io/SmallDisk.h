#pragma once

#include "tests/support/TemporaryFolder.h"

#include <cerrno>
#include <csignal>
#include <sys/mount.h>
#include <sys/resource.h>

namespace marlevo {

/// A file system in memory. Not mounted if this process has no right to mount.
class SmallDisk {
public:
    static constexpr const char* oneMebibyte = "tmpfs";
    static constexpr const char* cannotReserveRoom = "ramfs";

    explicit SmallDisk(const char* type = oneMebibyte) : type_(type), isMounted_(mount(0)) {}
    ~SmallDisk() {
        if (isMounted_) ::umount2(folder_.path().c_str(), MNT_DETACH);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool isMounted() const { return isMounted_; }
    bool makeReadOnly() { return mount(MS_REMOUNT | MS_RDONLY); }
    std::filesystem::path operator/(const std::string& name) const { return folder_ / name; }

private:
    bool mount(unsigned long flags) {
        return ::mount(type_, folder_.path().c_str(), type_, flags, "size=1m") == 0;
    }

    TemporaryFolder folder_;
    const char* type_;
    bool isMounted_;
};

/// Limits the size of the files that this process writes.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t size) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limited{size, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit before_{};
    void (*handler_)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

}  // namespace marlevo
