#pragma once

#include "platform/NotificationCenter.h"
#include "platform/Services.h"
#include "ui/windows/DrawingDocumentKey.h"

#include <QObject>
#include <QPointer>

#include <filesystem>
#include <span>
#include <vector>

class QSessionManager;
class QWindow;

namespace marlevo {

class DocumentWindow;
class SettingsWindow;

/// The application: its windows, which share one set of services, the focused document, and the
/// commands that are not about one document.
///
/// The focused document follows the focus alone. When its window closes, the document of the window
/// used before follows at once, since the desktop may give the focus later or not at all.
///
/// The program ends when the last document window has closed, even if the settings window is open.
class MarlevoApp final : public QObject {
    Q_OBJECT

public:
    /// The services must outlive the application. Without preferences there is no settings window.
    explicit MarlevoApp(const Services& services);

    /// Deletes the windows that are still open.
    ~MarlevoApp() override;

    const Services& services() const { return services_; }
    DrawingDocumentKey& focusedDocument() { return focusedDocument_; }
    NotificationCenter& notifications() { return notifications_; }

    /// Opens a window with a fresh drawing, which is deleted when it is closed.
    DocumentWindow& openWindow();

    /// Opens a window for each of the drawings, without the new-canvas sheet. An error of reading
    /// is one line on the console. If no window is open afterwards, opens one with a fresh drawing.
    void openWindows(std::span<const std::filesystem::path> drawings);

    /// The document windows still open, in the order in which they were opened.
    std::vector<DocumentWindow*> documentWindows() const;

    /// Asks for a drawing in the panel of these services. It replaces the picture of the document
    /// that is focused when the user confirms, and dismisses the new-canvas sheet of that window.
    void openDocument(const Services& services);

    void showSettings();

    /// Closes the document windows, from the one used last to the one used first, as if the user
    /// closed each. Stops if the user cancels a close.
    void quit();

    /// Saves the drawings of all windows as auto-save does, without a question, and waits for the
    /// disk for at most five seconds. For an end of the program that cannot be refused.
    void saveBeforeEnd();

    /// Closes the windows whose drawings saveBeforeEnd() did not write, each as if the user had
    /// closed it, and waits for the answers. Returns false if the user keeps one.
    bool closeUnsavedDrawings();

    /// Lets the toolkit close the windows at the end of the session: without a question about a
    /// drawing that auto-save has written.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void commitSession(QSessionManager& manager);
    void focusFollows(const QWindow* focused);
    void focus(DocumentWindow& window);
    void forget(DocumentWindow& window);
    void closeNextWindow();

    Services services_;
    NotificationCenter notifications_;
    DrawingDocumentKey focusedDocument_;
    std::vector<QPointer<DocumentWindow>> windows_;  ///< in the order of their opening
    std::vector<DocumentWindow*> byUse_;             ///< the same, the one used last at the end
    QPointer<SettingsWindow> settings_;
    bool isQuitting_ = false;
};

}  // namespace marlevo
