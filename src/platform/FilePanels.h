#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace marlevo {

/// A kind of file that a panel offers.
struct FileType {
    std::string description;  ///< as the panel shows it, such as "PNG image"
    std::vector<std::string>
        extensions;  ///< without the dot; a save panel adds a missing first one
};

struct SavePanelRequest {
    std::string title;
    FileType fileType;
    std::string proposedName;
    std::optional<std::filesystem::path> folder;  ///< shown first; else the panel's own choice
};

/// A request for one existing file. Folders cannot be chosen.
struct OpenPanelRequest {
    std::string title;
    FileType fileType;
};

/// The desktop's panels for choosing files, shown over one window without blocking it.
class FilePanels {
public:
    /// Receives the chosen file, or nothing if the user cancelled. Called once, on the
    /// user-interface thread, after the call that showed the panel has returned. Not called if the
    /// window is destroyed before.
    using Completion = std::function<void(std::optional<std::filesystem::path>)>;

    virtual ~FilePanels() = default;

    /// Asks before an existing file is chosen. The user can create folders in the panel.
    virtual void showSavePanel(const SavePanelRequest& request, Completion completion) = 0;

    virtual void showOpenPanel(const OpenPanelRequest& request, Completion completion) = 0;
};

}  // namespace marlevo
