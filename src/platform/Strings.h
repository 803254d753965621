#pragma once

#include <string>

namespace marlevo {

/// The program's texts in the user's language, for the layers without Qt. Both arguments of a call
/// must be literals, because the tools of the catalogues search the sources for them.
class Strings {
public:
    virtual ~Strings() = default;

    /// The text in the user's language, or the text itself if the catalogue has no entry for it.
    virtual std::string translate(const char* context, const char* text) const = 0;
};

/// The text itself, marked for the tools of the catalogues. The code that shows it must translate
/// it with the same context.
constexpr const char* translatable([[maybe_unused]] const char* context, const char* text) {
    return text;
}

}  // namespace marlevo
