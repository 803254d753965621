#include "platform/qt/QtFilePanels.h"

#include "platform/qt/OpenPanel.h"
#include "platform/qt/SavePanel.h"

#include <utility>

namespace marlevo {

QtFilePanels::QtFilePanels(QWidget& window) : window_(window) {}

QtFilePanels::~QtFilePanels() { delete open_; }

void QtFilePanels::showSavePanel(const SavePanelRequest& request, Completion completion) {
    if (open_) return cancelLater(std::move(completion));
    show(new SavePanel(request, &window_), std::move(completion));
}

void QtFilePanels::showOpenPanel(const OpenPanelRequest& request, Completion completion) {
    if (open_) return cancelLater(std::move(completion));
    show(new OpenPanel(request, &window_), std::move(completion));
}

void QtFilePanels::cancelLater(Completion completion) {
    queue_.post([completion = std::move(completion)] { completion(std::nullopt); });
}

void QtFilePanels::show(FilePanel* panel, Completion completion) {
    open_ = panel;
    panel->setAttribute(Qt::WA_DeleteOnClose);
    // The panel is the context: its deletion disconnects the completion.
    QObject::connect(panel, &QFileDialog::finished, panel,
                     [panel, completion = std::move(completion)](int result) {
                         if (result == QFileDialog::Accepted)
                             completion(panel->chosenFile());
                         else
                             completion(std::nullopt);
                     });
    panel->open();
}

}  // namespace marlevo
