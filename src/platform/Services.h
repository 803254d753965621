#pragma once

namespace marlevo {

class BackgroundQueue;
class FilePanels;
class ImageCodec;
class MainQueue;
class Pasteboard;
class Printer;

/// What a document wants of the desktop. The services are borrowed and must outlive whoever holds
/// them; an absent one makes the operations that need it do nothing.
struct Services {
    MainQueue* mainQueue = nullptr;
    FilePanels* filePanels = nullptr;
    const ImageCodec* imageCodec = nullptr;
    BackgroundQueue* backgroundQueue = nullptr;
    Printer* printer = nullptr;
    Pasteboard* pasteboard = nullptr;
};

}  // namespace marlevo
