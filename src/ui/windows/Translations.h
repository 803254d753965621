#pragma once

#include <QTranslator>

namespace marlevo {

/// The program's texts and the toolkit's own, in the first of the user's languages for which there
/// is a catalogue, else in English, as long as this object lives. To be made before any window.
///
/// Texts are marked by tr() in the windows, and by Services::translate() and translatable() in the
/// layers that know no toolkit; the build target update_catalogues brings the catalogues of
/// translations/ up to date with them.
class Translations {
public:
    Translations();

private:
    QTranslator toolkit_;
    QTranslator program_;
};

}  // namespace marlevo
