#include "platform/qt/QtFilePanels.h"

#include "platform/qt/OpenPanel.h"
#include "platform/qt/SavePanel.h"

#include <QFileInfo>

#include <utility>

namespace marlevo {

namespace {

std::filesystem::path chosenFile(const QFileDialog& panel) {
    return QFileInfo(panel.selectedFiles().value(0)).absoluteFilePath().toStdU16String();
}

}  // namespace

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

void QtFilePanels::show(QFileDialog* panel, Completion completion) {
    open_ = panel;
    panel->setAttribute(Qt::WA_DeleteOnClose);
    // The panel is the context: once it is gone, nobody is called.
    QObject::connect(panel, &QFileDialog::finished, panel,
                     [panel, completion = std::move(completion)](int result) {
                         if (result == QFileDialog::Accepted)
                             completion(chosenFile(*panel));
                         else
                             completion(std::nullopt);
                     });
    panel->open();
}

}  // namespace marlevo
