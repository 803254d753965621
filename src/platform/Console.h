#pragma once

#include <string_view>

namespace marlevo {

/// Receives the program's reports of errors, line by line.
class Console {
public:
    virtual ~Console() = default;

    /// Writes the text as one line, without delay. Callable on any thread.
    virtual void writeLine(std::string_view text) = 0;
};

}  // namespace marlevo
