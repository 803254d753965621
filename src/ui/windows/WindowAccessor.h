#pragma once

#include <QObject>
#include <QPointer>

class QAbstractButton;
class QMessageBox;
class QWidget;

namespace marlevo {

class DrawingDocument;

/// Puts the close guard in front of the window that shows a document.
class WindowAccessor final {
public:
    class Coordinator;
};

/// The close guard of one window: asks before a drawing with strokes is closed, whether or not it
/// was saved: the document has no modified state.
class WindowAccessor::Coordinator final : public QObject {
    Q_OBJECT

public:
    /// The document must outlive the coordinator.
    explicit Coordinator(DrawingDocument& document, QObject* parent = nullptr);

    /// Becomes the guard of the window that `view` is in after the current event.
    void setup(QWidget& view);

    /// Once true, the window closes without a question.
    bool shouldSkipClose() const { return shouldSkipClose_; }

    /// Returns whether the window may close now. If not, a question is shown; its answer closes the
    /// window later, through a panel for its picture or at once, or keeps it.
    bool windowShouldClose(QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The user has cancelled the closing.
    void kept();

private:
    void ask(QWidget& window);
    void savePictureThenClose(QWidget& window);

    DrawingDocument& document_;
    bool shouldSkipClose_ = false;
    QPointer<QMessageBox> alert_;
};

}  // namespace marlevo
