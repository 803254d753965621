#include "platform/StandardOutput.h"

#include <algorithm>
#include <cstdio>
#include <string>

namespace marlevo {

void StandardOutput::writeLine(std::string_view text) {
    std::string line(text);
    std::ranges::replace_if(
        line, [](unsigned char c) { return c < 0x20 || c == 0x7F; }, ' ');
    line += '\n';
    // One call, so that lines of two threads do not mix.
    std::fwrite(line.data(), 1, line.size(), stdout);
    std::fflush(stdout);
}

}  // namespace marlevo
