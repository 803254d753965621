#pragma once

#include <QObject>
#include <QPointer>

class QAbstractButton;
class QMessageBox;
class QWidget;

namespace marlevo {

class DrawingDocument;

/// Installs the close guard of the window that shows a document.
class WindowAccessor final {
public:
    class Coordinator;
};

/// The close guard of one window. Asks before a drawing with strokes is closed, even after a save,
/// because the document does not record whether it has unsaved changes.
class WindowAccessor::Coordinator final : public QObject {
    Q_OBJECT

public:
    /// The document must outlive the coordinator.
    explicit Coordinator(DrawingDocument& document, QObject* parent = nullptr);

    /// After the current event, becomes the guard of the window that contains `view`.
    void setup(QWidget& view);

    /// Once true, the window closes without a question.
    bool shouldSkipClose() const { return shouldSkipClose_; }

    /// While true, the window closes without a question: the session ends and the drawing is saved.
    void setEndsWithSession(bool ends) { endsWithSession_ = ends; }

    /// True if the window may close now. Otherwise a question to the user is open. Its answer
    /// closes the window, at once or after a file panel, or keeps it open.
    bool windowShouldClose(QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The user has cancelled the close.
    void kept();

private:
    void ask(QWidget& window);
    void savePictureThenClose(QWidget& window);

    DrawingDocument& document_;
    bool shouldSkipClose_ = false;
    bool endsWithSession_ = false;
    QPointer<QMessageBox> alert_;
};

}  // namespace marlevo
