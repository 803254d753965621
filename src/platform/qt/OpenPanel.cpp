#include "platform/qt/OpenPanel.h"

#include "platform/qt/PanelParts.h"

#include <QFileInfo>

namespace marlevo {

OpenPanel::OpenPanel(const OpenPanelRequest& request, QWidget* parent) : QFileDialog(parent) {
    setOption(DontUseNativeDialog);
    setWindowTitle(QString::fromStdString(request.title));
    setAcceptMode(AcceptOpen);
    setFileMode(ExistingFile);
    setNameFilter(nameFilter(request.fileType));
}

void OpenPanel::accept() {
    const QFileInfo file(selectedFiles().value(0));
    if (!selectedFiles().isEmpty() && !file.exists())
        return showRefusal(*this, tr("There is no file “%1”.").arg(file.fileName()));
    QFileDialog::accept();
}

}  // namespace marlevo
