#include "platform/BackgroundThread.h"
#include "platform/FileAddress.h"
#include "platform/StandardOutput.h"
#include "platform/WorkQueue.h"
#include "platform/qt/KeyRepeats.h"
#include "platform/qt/LatinShortcuts.h"
#include "platform/qt/QtImageCodec.h"
#include "platform/qt/QtMainQueue.h"
#include "platform/qt/QtPasteboard.h"
#include "platform/qt/QtPreferences.h"
#include "platform/qt/QtPrinter.h"
#include "platform/qt/QtSleepingClock.h"
#include "platform/qt/QtStrings.h"
#include "platform/qt/TerminationSignals.h"
#include "ui/controls/Icons.h"
#include "ui/controls/MarlevoStyle.h"
#include "ui/windows/MarlevoApp.h"
#include "ui/windows/Translations.h"

#include <QApplication>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <span>
#include <vector>

namespace {

/// The files that the command line names by a path or an address, byte for byte. `arguments` begins
/// with the program's own name.
std::vector<std::filesystem::path> drawingsToOpen(std::span<const char* const> arguments) {
    std::vector<std::filesystem::path> files;
    for (const char* const argument : arguments.subspan(arguments.empty() ? 0 : 1)) {
        std::error_code error;
        const std::filesystem::path path = std::filesystem::absolute(argument, error);
        files.push_back(marlevo::pathOfFileAddress(argument).value_or(error ? argument : path));
    }
    return files;
}

/// The application, while it runs.
marlevo::MarlevoApp* running = nullptr;

/// For the toolkit's call of exit() when the display is gone. At a normal end `running` is null.
void saveAtExit() {
    if (running) running->saveBeforeEnd();
}

}  // namespace

int main(int argc, char* argv[]) {
    // By default a write to a closed output or beyond the limit on file size ends the program. With
    // the signals ignored, the write returns an error.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);

    QApplication application(argc, argv);
    QApplication::setStyle(new marlevo::MarlevoStyle);
    // Each position of the pointer becomes a point of the stroke, so pointer events must not be
    // merged. Set here because the constructor of the application turns merging on for X11.
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
    QCoreApplication::setAttribute(Qt::AA_CompressTabletEvents, false);
    QApplication::setApplicationName(QStringLiteral("Marlevo"));
    QApplication::setApplicationVersion(QStringLiteral(MARLEVO_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("marlevo"));
    QApplication::setWindowIcon(marlevo::applicationIcon());
    const marlevo::Translations translations;
    marlevo::KeyRepeatFilter keyRepeatFilter;
    application.installEventFilter(&keyRepeatFilter);
    marlevo::LatinShortcuts latinShortcuts;
    application.installEventFilter(&latinShortcuts);

    marlevo::QtMainQueue mainQueue;
    const marlevo::QtImageCodec imageCodec;
    marlevo::StandardOutput console;
    marlevo::QtPreferences preferences;
    marlevo::QtSleepingClock sleepingClock;
    marlevo::QtPrinter printer;
    marlevo::QtPasteboard pasteboard;
    const marlevo::QtStrings strings;
    // Declared after everything that their work uses, and so destroyed first.
    marlevo::WorkQueue flushQueue;
    marlevo::WorkQueue writeQueue;
    marlevo::BackgroundThread backgroundQueue;
    marlevo::MarlevoApp app({.mainQueue = &mainQueue,
                             .imageCodec = &imageCodec,
                             .console = &console,
                             .preferences = &preferences,
                             .sleepingClock = &sleepingClock,
                             .writeQueue = &writeQueue,
                             .flushQueue = &flushQueue,
                             .backgroundQueue = &backgroundQueue,
                             .printer = &printer,
                             .pasteboard = &pasteboard,
                             .strings = &strings});
    // The constructor of the application has removed the toolkit's own options.
    app.openWindows(drawingsToOpen(std::span(argv, static_cast<std::size_t>(argc))));
    const marlevo::TerminationSignals signals([&app] { app.saveBeforeEnd(); });
    running = &app;
    std::atexit(saveAtExit);
    const int status = QApplication::exec();
    running = nullptr;
    return status;
}
