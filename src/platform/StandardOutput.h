#pragma once

#include "platform/Console.h"

namespace marlevo {

/// The program's standard output. Control characters, which file names can contain, are written as
/// spaces, so that they neither break the line nor control a terminal.
class StandardOutput final : public Console {
public:
    void writeLine(std::string_view text) override;
};

}  // namespace marlevo
