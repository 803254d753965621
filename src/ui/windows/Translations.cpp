#include "ui/windows/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace marlevo {

namespace {

constexpr auto separator = "_";
constexpr auto folder = ":/translations";

// Texts of the toolkit's dialogs that its own catalogues lack in some of the program's languages.
[[maybe_unused]] constexpr const char* textsOfTheToolkit[] = {
    QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "Drive"),
    QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "Folder"),
    QT_TRANSLATE_NOOP("QPrintSettingsOutput", "Double Sided Printing"),
    QT_TRANSLATE_NOOP("QPrintSettingsOutput", "Long side binding"),
    QT_TRANSLATE_NOOP("QPrintSettingsOutput", "Off"),
    QT_TRANSLATE_NOOP("QPrintSettingsOutput", "Pages"),
    QT_TRANSLATE_NOOP("QPrintSettingsOutput", "Short side binding"),
};
[[maybe_unused]] constexpr const char* helpOfTheToolkit =
    QT_TRANSLATE_NOOP("QPrintSettingsOutput",
                      "Specify pages or ranges separated by commas. Ranges are specified by two "
                      "numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.");

}  // namespace

Translations::Translations() {
    const QLocale user;
    const QString program = QStringLiteral("marlevo");
    const bool isLoaded = program_.load(user, program, separator, folder) ||
                          program_.load(program + QLatin1String("_en"), folder);
    if (isLoaded) QCoreApplication::installTranslator(&program_);
    // English for the toolkit, too, because a mix of two languages is worse than a foreign one.
    if (toolkit_.load(QLocale(program_.language()), QStringLiteral("qtbase"), separator,
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&toolkit_);
}

}  // namespace marlevo
