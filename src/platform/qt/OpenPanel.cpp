#include "platform/qt/OpenPanel.h"

namespace marlevo {

OpenPanel::OpenPanel(const OpenPanelRequest& request, QWidget* parent)
    : FilePanel(AcceptOpen, request.title, request.fileType, parent) {}

void OpenPanel::examine(const std::filesystem::path& file) {
    std::error_code error;
    if (!std::filesystem::exists(file, error))
        return showRefusal(tr("There is no file “%1”.").arg(shownText(file.filename())));
    finish();
}

}  // namespace marlevo
