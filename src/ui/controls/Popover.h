#pragma once

#include <QPointer>
#include <QWidget>

class QPointerEvent;

namespace marlevo {

/// A panel that points at a control of its window, on the control's trailing side. It takes the
/// keyboard while it is open. Escape closes and deletes it; so does a press elsewhere in its
/// window, which does nothing more; so do another focus, such as a sheet's, and another active
/// window.
class Popover : public QWidget {
    Q_OBJECT

public:
    /// Shows itself beside `anchor`, in front of everything else in its window. Owned by that
    /// window. The content goes into the popover's layout, before it is opened.
    explicit Popover(QWidget& anchor);

    void open();
    void dismiss();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    bool takePress(QPointerEvent& press);
    void place();
    QRectF body() const;

    QPointer<QWidget> anchor_;
    QPointer<QWidget> focusedBefore_;
    double arrowTip_ = 0;  ///< y of its tip
};

}  // namespace marlevo
