#pragma once

#include <string_view>

namespace marlevo {

/// Where the program reports what went wrong, line by line.
class Console {
public:
    virtual ~Console() = default;

    /// Writes the text as one line that can be read at once. Callable on any thread.
    virtual void writeLine(std::string_view text) = 0;
};

}  // namespace marlevo
