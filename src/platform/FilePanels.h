#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace marlevo {

/// A kind of file that a panel offers.
struct FileType {
    std::string description;              ///< as shown in the panel, such as "PNG image"
    std::vector<std::string> extensions;  ///< without the dot; the first one is added when missing
};

struct SavePanelRequest {
    std::string title;
    FileType fileType;
    std::string proposedName;
    std::optional<std::filesystem::path> folder;  ///< where to start; else the panel's own choice
};

/// One existing file is to be chosen, no folder.
struct OpenPanelRequest {
    std::string title;
    FileType fileType;
};

/// The desktop's panels for choosing files, shown over one window without blocking it.
class FilePanels {
public:
    /// Receives the chosen file, or nothing when the user cancelled. Called once, on the
    /// user-interface thread, never before the call that showed the panel has returned. Not called
    /// at all when the window goes away first.
    using Completion = std::function<void(std::optional<std::filesystem::path>)>;

    virtual ~FilePanels() = default;

    /// Asks before an existing file is chosen; folders can be created in the panel.
    virtual void showSavePanel(const SavePanelRequest& request, Completion completion) = 0;

    virtual void showOpenPanel(const OpenPanelRequest& request, Completion completion) = 0;
};

}  // namespace marlevo
