#include "io/FileCalls.h"

#include <cstdint>
#include <fcntl.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace marlevo {

int FileCalls::fallocate(int file, int mode, off_t begin, off_t length) const {
    return ::fallocate(file, mode, begin, length);
}

ssize_t FileCalls::pwrite(int file, const char* from, std::size_t count, off_t at) const {
    return ::pwrite(file, from, count, at);
}

int FileCalls::fsync(int file) const { return ::fsync(file); }

int FileCalls::ftruncate(int file, off_t length) const { return ::ftruncate(file, length); }

bool FileCalls::copiesOnWrite(int file) const {
    constexpr std::uint32_t btrfs = 0x9123683E;
    constexpr std::uint32_t bcachefs = 0xCA451A4E;
    constexpr std::uint32_t zfs = 0x2FC12FC1;
    struct statfs system {};
    if (::fstatfs(file, &system) != 0) return false;
    const auto type = static_cast<std::uint32_t>(system.f_type);
    return type == btrfs || type == bcachefs || type == zfs;
}

}  // namespace marlevo
