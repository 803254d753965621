#include "ui/windows/MarlevoApp.h"

#include "io/Open.h"
#include "platform/WorkQueue.h"
#include "ui/windows/ContentView.h"
#include "ui/windows/DocumentWindow.h"
#include "ui/windows/SettingsWindow.h"

#include <QApplication>
#include <QEventLoop>
#include <QSessionManager>
#include <QWindow>

namespace marlevo {

MarlevoApp::MarlevoApp(const Services& services) : services_(services) {
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &MarlevoApp::focusFollows);
    // Direct, because the session manager continues when this signal returns.
    connect(qApp, &QGuiApplication::commitDataRequest, this, &MarlevoApp::commitSession,
            Qt::DirectConnection);
    qApp->installEventFilter(this);
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
    byUse_.insert(byUse_.begin(), window);
    connect(window, &DocumentWindow::closed, this, [this, window] { forget(*window); });
    connect(window, &DocumentWindow::kept, this, [this] { isQuitting_ = false; });
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

void MarlevoApp::openDocument(const Services& services) {
    marlevo::openDocument(
        services, [this] { return focusedDocument_.get(); },
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

void MarlevoApp::saveBeforeEnd() {
    for (DocumentWindow* const window : documentWindows())
        window->content().saveBeforeEnd();
    // The writing posts the flushes.
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    for (WorkQueue* const queue : {services_.writeQueue, services_.flushQueue}) {
        const auto left = end - std::chrono::steady_clock::now();
        if (queue) queue->waitFor(std::chrono::duration_cast<std::chrono::milliseconds>(left));
    }
}

bool MarlevoApp::closeUnsavedDrawings() {
    for (DocumentWindow* const window : documentWindows()) {
        if (window->content().isSaved() || strokeCount(window->document().layers) == 0) continue;
        QEventLoop answer;
        bool isKept = false;
        connect(window, &DocumentWindow::kept, &answer, [&] {
            isKept = true;
            answer.quit();
        });
        const QPointer<DocumentWindow> open(window);
        connect(window, &DocumentWindow::closed, &answer, &QEventLoop::quit);
        window->closeDismissingPanels();
        if (open && open->isVisible()) answer.exec();
        if (isKept) return false;
    }
    return true;
}

void MarlevoApp::commitSession(QSessionManager& manager) {
    saveBeforeEnd();
    if (!manager.allowsInteraction()) return;
    if (!closeUnsavedDrawings()) manager.cancel();
    manager.release();
}

bool MarlevoApp::eventFilter(QObject* watched, QEvent* event) {
    if (watched == qApp && event->type() == QEvent::Quit) {
        saveBeforeEnd();
        for (DocumentWindow* const window : documentWindows())
            window->content().closeGuard().setEndsWithSession(window->content().isSaved());
        // The user can keep a window, and then the others stay open.
        const auto reset = [this] {
            for (DocumentWindow* const window : documentWindows())
                window->content().closeGuard().setEndsWithSession(false);
        };
        QMetaObject::invokeMethod(this, reset, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

/// A window's panels count as the window. The focus of another program changes nothing, nor does a
/// popup, such as a field's list of completions, which need not have a transient parent.
void MarlevoApp::focusFollows(const QWindow* focused) {
    if (focused == nullptr || focused->type() == Qt::Popup) return;
    for (const QWindow* ancestor = focused; ancestor; ancestor = ancestor->transientParent())
        for (DocumentWindow* const window : documentWindows())
            if (window->windowHandle() == ancestor) return focus(*window);
    focusedDocument_.set(nullptr);
}

void MarlevoApp::focus(DocumentWindow& window) {
    std::erase(byUse_, &window);
    byUse_.push_back(&window);
    focusedDocument_.set(&window.document());
}

void MarlevoApp::forget(DocumentWindow& window) {
    std::erase(windows_, &window);
    std::erase(byUse_, &window);
    if (focusedDocument_.get() == &window.document())
        focusedDocument_.set(byUse_.empty() ? nullptr : &byUse_.back()->document());
    if (isQuitting_) closeNextWindow();
    // Closed, not deleted, so that a number typed there is stored.
    if (windows_.empty() && settings_) settings_->close();
}

/// The window closes at once, or emits closed() or kept() after a question to the user.
void MarlevoApp::closeNextWindow() {
    if (!byUse_.empty()) byUse_.back()->closeDismissingPanels();
}

}  // namespace marlevo
