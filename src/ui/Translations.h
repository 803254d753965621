#pragma once

#include <QTranslator>

namespace marlevo {

/// The program's texts in the user's language, as long as this object lives; in English where there
/// is no catalogue for that language. To be made before any window.
///
/// Texts are marked by tr() in the windows and by Services::translate() in the layers that know no
/// toolkit; the catalogue's tool finds both:
///     lupdate src -ts translations/marlevo_<language>.ts
/// The keys "single_stroke" and "multiple_strokes" have their texts in every catalogue, the English
/// one included.
class Translations {
public:
    Translations();

private:
    QTranslator toolkit_;
    QTranslator program_;
};

}  // namespace marlevo
