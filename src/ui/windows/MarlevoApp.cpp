#include "ui/windows/MarlevoApp.h"

#include "io/Open.h"
#include "ui/windows/DocumentWindow.h"
#include "ui/windows/SettingsWindow.h"

#include <QApplication>
#include <QWindow>

namespace marlevo {

MarlevoApp::MarlevoApp(const Services& services) : services_(services) {
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &MarlevoApp::focusFollows);
}

MarlevoApp::~MarlevoApp() {
    focusedDocument_.set(nullptr);
    delete settings_;
    for (const QPointer<DocumentWindow>& window : windows_)
        delete window;
}

DocumentWindow& MarlevoApp::openWindow() {
    std::erase_if(windows_, [](const auto& window) { return window.isNull(); });
    auto* window = new DocumentWindow(*this);
    window->setAttribute(Qt::WA_DeleteOnClose);
    windows_.emplace_back(window);
    connect(window, &DocumentWindow::closed, this, [this, window] { forget(*window); });
    connect(window, &DocumentWindow::kept, this, [this] { isQuitting_ = false; });
    // Not every desktop gives a new window the focus.
    focusedDocument_.set(&window->document());
    window->show();
    return *window;
}

void MarlevoApp::openWindows(std::span<const std::filesystem::path> drawings) {
    for (const std::filesystem::path& file : drawings) {
        const auto drawing = loadDrawing(file, services_.console);
        if (!drawing) continue;
        DocumentWindow& window = openWindow();
        window.content().setShowNewCanvas(false);
        replacePicture(window.document(), *drawing, file);
    }
    if (windows_.empty()) openWindow();
}

std::vector<DocumentWindow*> MarlevoApp::documentWindows() const {
    std::vector<DocumentWindow*> open;
    for (const QPointer<DocumentWindow>& window : windows_)
        if (window) open.push_back(window);
    return open;
}

void MarlevoApp::openDocument() {
    const DrawingDocument* const frontmost = focusedDocument_.get();
    if (frontmost == nullptr) return;
    marlevo::openDocument(
        frontmost->services(), [this] { return focusedDocument_.get(); },
        [this](const DrawingDocument& opened) {
            for (DocumentWindow* const window : documentWindows())
                if (&window->document() == &opened) window->content().setShowNewCanvas(false);
        });
}

void MarlevoApp::showSettings() {
    if (services_.preferences == nullptr) return;
    if (!settings_) {
        settings_ = new SettingsWindow(*this);
        if (const QWidget* const front = QApplication::activeWindow())
            settings_->move(front->geometry().center() - QRect({}, settings_->sizeHint()).center());
    }
    settings_->show();
    settings_->raise();
    settings_->activateWindow();
}

void MarlevoApp::quit() {
    isQuitting_ = true;
    closeNextWindow();
}

/// A window's panels count as the window. The focus of another program changes nothing, nor does a
/// popup, such as a field's list of completions, which need not know its window.
void MarlevoApp::focusFollows(const QWindow* focused) {
    if (focused == nullptr || focused->type() == Qt::Popup) return;
    for (const QWindow* ancestor = focused; ancestor; ancestor = ancestor->transientParent())
        for (DocumentWindow* const window : documentWindows())
            if (window->windowHandle() == ancestor)
                return focusedDocument_.set(&window->document());
    focusedDocument_.set(nullptr);
}

void MarlevoApp::forget(DocumentWindow& window) {
    std::erase(windows_, &window);
    // The desktop may take its time to give another window the focus, or not do it at all.
    if (focusedDocument_.get() == &window.document())
        focusedDocument_.set(windows_.empty() ? nullptr : &windows_.back()->document());
    if (isQuitting_) closeNextWindow();
    // Closed, not deleted, so that a number typed there is stored.
    if (windows_.empty() && settings_) settings_->close();
}

/// The window answers at once, or by one of its signals when it has asked the user.
void MarlevoApp::closeNextWindow() {
    const std::vector<DocumentWindow*> open = documentWindows();
    if (open.empty()) return;
    DocumentWindow* next = open.back();
    for (DocumentWindow* const window : open)
        if (&window->document() == focusedDocument_.get()) next = window;
    next->closeDismissingPanels();
}

}  // namespace marlevo
