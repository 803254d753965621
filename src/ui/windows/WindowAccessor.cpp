#include "ui/windows/WindowAccessor.h"

#include "io/Export.h"
#include "io/FileTypes.h"
#include "model/DrawingDocument.h"
#include "ui/canvas/StatusBar.h"

#include <QEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

namespace marlevo {

namespace {

/// Sets the message in bold and gives the informative text the width of its sentences. The toolkit
/// shows both alike and breaks the second one before its last words.
void setUpTexts(QMessageBox& alert) {
    auto& message = *alert.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    QFont bold = message.font();
    bold.setBold(true);
    message.setFont(bold);

    auto& informative = *alert.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"));
    const int greatest = alert.screen()->availableSize().width() / 2;
    informative.setMinimumWidth(
        std::min(informative.fontMetrics().horizontalAdvance(informative.text()) + 1, greatest));
}

}  // namespace

WindowAccessor::Coordinator::Coordinator(DrawingDocument& document, QObject* parent)
    : QObject(parent), document_(document) {}

void WindowAccessor::Coordinator::setup(QWidget& view) {
    QMetaObject::invokeMethod(
        this, [this, &view] { view.window()->installEventFilter(this); }, Qt::QueuedConnection);
}

bool WindowAccessor::Coordinator::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Close) return false;
    if (windowShouldClose(static_cast<QWidget&>(*watched))) return false;
    event->ignore();
    return true;
}

bool WindowAccessor::Coordinator::windowShouldClose(QWidget& window) {
    if (shouldSkipClose_ || endsWithSession_ || strokeCount(document_.layers) < 1) return true;
    if (alert_)
        alert_->raise();
    else
        ask(window);
    return false;
}

void WindowAccessor::Coordinator::ask(QWidget& window) {
    alert_ = new QMessageBox(&window);
    alert_->setAttribute(Qt::WA_DeleteOnClose);
    alert_->setWindowTitle(window.windowTitle());
    alert_->setIcon(QMessageBox::Warning);
    alert_->setText(tr("Do you want to save your drawing?"));
    alert_->setInformativeText(tr("Your drawing will be lost if you don't save."));
    setUpTexts(*alert_);
    QPushButton* const save = alert_->addButton(tr("&Save"), QMessageBox::AcceptRole);
    QPushButton* const cancel = alert_->addButton(tr("&Cancel"), QMessageBox::RejectRole);
    QPushButton* const discard = alert_->addButton(tr("&Don't Save"), QMessageBox::DestructiveRole);
    alert_->setDefaultButton(save);
    alert_->setEscapeButton(cancel);

    connect(alert_, &QMessageBox::finished, this, [this, &window, save, discard] {
        const QAbstractButton* const answer = alert_->clickedButton();
        // Allows a new question.
        alert_.clear();
        if (answer != save && answer != discard) {
            Q_EMIT kept();
            return;
        }
        shouldSkipClose_ = true;
        if (answer == save)
            savePictureThenClose(window);
        else
            window.close();
    });
    alert_->setWindowModality(Qt::ApplicationModal);
    alert_->show();
}

void WindowAccessor::Coordinator::savePictureThenClose(QWidget& window) {
    const Services& services = document_.services();
    if (services.filePanels == nullptr) {
        window.close();
        return;
    }
    services.filePanels->showSavePanel(
        {services.translate("Files", "Save Drawing"), fileType(ExportFormat::png, services),
         proposedPictureName(document_, ExportFormat::png), std::nullopt},
        [this, &window](const std::optional<std::filesystem::path>& file) {
            if (file) exportTo(document_, *file, ExportFormat::png);
            window.close();
        });
}

}  // namespace marlevo
