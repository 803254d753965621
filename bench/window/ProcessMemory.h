#pragma once

#include <fstream>
#include <string>

namespace marlevo {

/// The memory that this process has in use, in bytes.
inline double residentBytes() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
        if (double kibibytes = 0; word == "VmRSS:" && status >> kibibytes) return kibibytes * 1024;
    return 0;
}

}  // namespace marlevo
