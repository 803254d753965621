#pragma once

#include "tests/support/TemporaryFolder.h"

#include <cerrno>
#include <csignal>
#include <sys/mount.h>
#include <sys/resource.h>

namespace marlevo {

/// A file system of one mebibyte in memory. Not mounted if this process has no right to mount.
class SmallDisk {
public:
    SmallDisk()
        : isMounted_(::mount("tmpfs", folder_.path().c_str(), "tmpfs", 0, "size=1m") == 0) {}
    ~SmallDisk() {
        if (isMounted_) ::umount2(folder_.path().c_str(), MNT_DETACH);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool isMounted() const { return isMounted_; }
    std::filesystem::path operator/(const std::string& name) const { return folder_ / name; }

private:
    TemporaryFolder folder_;
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
