#pragma once

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
class Strings;
class WorkQueue;

/// What a document wants of the desktop. The services are borrowed and must outlive whoever holds
/// them; an absent one makes the operations that need it do nothing.
struct Services {
    MainQueue* mainQueue = nullptr;
    FilePanels* filePanels = nullptr;
    const ImageCodec* imageCodec = nullptr;
    Console* console = nullptr;
    Preferences* preferences = nullptr;
    SleepingClock* sleepingClock = nullptr;
    WorkQueue* flushQueue = nullptr;  ///< where files written are brought to the disk
    BackgroundQueue* backgroundQueue = nullptr;
    Printer* printer = nullptr;
    Pasteboard* pasteboard = nullptr;
    const Strings* strings = nullptr;

    /// The text in the user's language; the text itself without strings. Literals only (Strings.h).
    std::string translate(const char* context, const char* text) const;
};

}  // namespace marlevo
