#pragma once

#include <QTranslator>

namespace marlevo {

/// Installs the catalogues of the program's texts and the toolkit's, for the first of the user's
/// languages that has a catalogue, else for English, and removes them when destroyed. Must be made
/// before any window.
///
/// Texts are marked by tr() in the windows, and by Services::translate() and translatable() in the
/// layers without the toolkit. The build target update_catalogues copies them into the catalogues
/// of translations/.
class Translations {
public:
    Translations();

private:
    QTranslator toolkit_;
    QTranslator program_;
};

}  // namespace marlevo
