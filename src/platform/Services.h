#pragma once

#include "platform/Strings.h"

#include <string>

namespace marlevo {

class BackgroundQueue;
class Console;
class FilePanels;
class ImageCodec;
class MainQueue;
class Pasteboard;
class Preferences;
class Printer;
class SleepingClock;
class WorkQueue;

/// The parts of the desktop that a document uses. The services are borrowed and must outlive all
/// copies of this struct. An operation that needs a null one does nothing.
struct Services {
    MainQueue* mainQueue = nullptr;
    FilePanels* filePanels = nullptr;
    const ImageCodec* imageCodec = nullptr;
    Console* console = nullptr;
    Preferences* preferences = nullptr;
    SleepingClock* sleepingClock = nullptr;
    WorkQueue* writeQueue = nullptr;  ///< encodes and writes what auto-save keeps
    WorkQueue* flushQueue = nullptr;  ///< flushes written files to the disk
    BackgroundQueue* backgroundQueue = nullptr;
    Printer* printer = nullptr;
    Pasteboard* pasteboard = nullptr;
    const Strings* strings = nullptr;

    /// The text in the user's language; the text itself without strings. Literals only (Strings.h).
    std::string translate(const char* context, const char* text) const {
        return strings ? strings->translate(context, text) : text;
    }
};

}  // namespace marlevo
