#include "platform/qt/QtFilePanels.h"

#include "platform/qt/SavePanel.h"

#include <utility>

namespace marlevo {

namespace {

std::filesystem::path pathFrom(const QString& file) { return file.toStdU16String(); }

}  // namespace

QtFilePanels::QtFilePanels(QWidget& window) : window_(window) {}

QtFilePanels::~QtFilePanels() { delete open_; }

void QtFilePanels::showSavePanel(const SavePanelRequest& request, Completion completion) {
    if (open_) {
        queue_.post([completion = std::move(completion)] { completion(std::nullopt); });
        return;
    }
    open_ = new SavePanel(request, &window_);
    open_->setAttribute(Qt::WA_DeleteOnClose);
    // The panel is the context: once it is gone, nobody is called.
    QObject::connect(open_, &SavePanel::finished, open_,
                     [panel = open_.data(), completion = std::move(completion)](int result) {
                         if (result == SavePanel::Accepted)
                             completion(pathFrom(panel->chosenFile()));
                         else
                             completion(std::nullopt);
                     });
    open_->open();
}

}  // namespace marlevo
