#pragma once

#include "platform/Console.h"

namespace marlevo {

/// The program's standard output. Control characters, which a file's name may bring, come out as
/// spaces: a line stays one line and does nothing to a terminal.
class StandardOutput final : public Console {
public:
    void writeLine(std::string_view text) override;
};

}  // namespace marlevo
