#include "ui/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace marlevo {

namespace {

constexpr auto separator = "_";
constexpr auto folder = ":/translations";

}  // namespace

Translations::Translations() {
    const QLocale user;
    const QString program = QStringLiteral("marlevo");
    const bool isLoaded = program_.load(user, program, separator, folder) ||
                          program_.load(program + QLatin1String("_en"), folder);
    if (isLoaded) QCoreApplication::installTranslator(&program_);
    // Not in the user's language: windows in two languages are worse than windows in a foreign one.
    if (toolkit_.load(QLocale(program_.language()), QStringLiteral("qtbase"), separator,
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&toolkit_);
}

}  // namespace marlevo
