#pragma once

#include "platform/FilePanels.h"
#include "platform/qt/FilePanel.h"
#include "platform/qt/QtMainQueue.h"

#include <QPointer>

namespace marlevo {

/// The file panels of one window, shown over it. A panel that is open at the destruction of this
/// object is closed without an answer.
class QtFilePanels final : public FilePanels {
public:
    /// The window must outlive this object.
    explicit QtFilePanels(QWidget& window);
    ~QtFilePanels() override;
    QtFilePanels(const QtFilePanels&) = delete;
    QtFilePanels& operator=(const QtFilePanels&) = delete;

    /// While a panel is open, another request is answered as cancelled.
    void showSavePanel(const SavePanelRequest& request, Completion completion) override;
    void showOpenPanel(const OpenPanelRequest& request, Completion completion) override;

private:
    void cancelLater(Completion completion);
    void show(FilePanel* panel, Completion completion);

    QWidget& window_;
    QPointer<FilePanel> open_;
    QtMainQueue queue_;
};

}  // namespace marlevo
