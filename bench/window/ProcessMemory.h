#pragma once

#include <fstream>
#include <string>

namespace marlevo {

/// The memory in use by this process, in bytes.
inline double residentBytes() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
        if (double kibibytes = 0; word == "VmRSS:" && status >> kibibytes) return kibibytes * 1024;
    return 0;
}

}  // namespace marlevo
