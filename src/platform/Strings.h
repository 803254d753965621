#pragma once

#include <string>

namespace marlevo {

/// The program's texts in the user's language, for the layers that know no toolkit. The call itself
/// is what the catalogue's tools look for: both arguments are literals.
class Strings {
public:
    virtual ~Strings() = default;

    /// The text in the user's language; the text itself when there is no entry for it.
    virtual std::string translate(const char* context, const char* text) const = 0;
};

/// The text itself, marked for the catalogues' tool; whoever shows it translates it by its context.
constexpr const char* translatable([[maybe_unused]] const char* context, const char* text) {
    return text;
}

}  // namespace marlevo
