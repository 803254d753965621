#pragma once

#include "platform/Strings.h"

namespace marlevo {

/// Texts from the catalogues that are installed in the application.
class QtStrings final : public Strings {
public:
    std::string translate(const char* context, const char* text) const override;
};

}  // namespace marlevo
