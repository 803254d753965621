#pragma once

#include <QPointer>
#include <QWidget>

namespace marlevo {

/// A panel that points at a control of its window, on the control's trailing side. It takes the
/// keyboard while it is open and goes away, for good, on Escape, on a press anywhere else (which
/// does nothing more), when something else takes the keyboard, such as a sheet, and when its window
/// is left.
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
    void place();
    QRectF body() const;

    QPointer<QWidget> anchor_;
    QPointer<QWidget> focusedBefore_;
    double arrowTip_ = 0;  ///< its y
};

}  // namespace marlevo
