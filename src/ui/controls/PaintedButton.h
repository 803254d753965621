#pragma once

#include <QAbstractButton>

class QPainter;

namespace marlevo {

/// A button that its subclass paints. It takes the keyboard only when reached by Tab, so that a
/// click leaves the keys to the canvas, and shows when it has it.
class PaintedButton : public QAbstractButton {
    Q_OBJECT

public:
    /// `name` is the accessible name.
    explicit PaintedButton(const QString& name, QWidget* parent = nullptr);

protected:
    /// Paints the button in all its states but the focus.
    virtual void paintContents(QPainter& painter) = 0;

    /// Of the ring that shows the focus.
    virtual double focusRadius() const { return 6; }

    /// Whether the pointer is on the button and a press would do something.
    bool isInviting() const { return isEnabled() && underMouse(); }

    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
};

}  // namespace marlevo
