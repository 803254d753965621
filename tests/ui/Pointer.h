#pragma once

#include <QCoreApplication>
#include <QTest>
#include <QWidget>
#include <QWindow>

/// A mouse over a widget. Its events pass through the window, like real ones. Positions are in
/// points from the widget's top left corner and may have fractions.
class Pointer {
public:
    explicit Pointer(QWidget& widget) : widget_(widget) {}

    void press(QPointF at, Qt::MouseButton button = Qt::LeftButton) {
        buttons_ |= button;
        send(QEvent::MouseButtonPress, at, button);
    }
    void move(QPointF to) { send(QEvent::MouseMove, to, Qt::NoButton); }
    void release(QPointF at, Qt::MouseButton button = Qt::LeftButton) {
        buttons_ &= ~Qt::MouseButtons(button);
        send(QEvent::MouseButtonRelease, at, button);
    }

private:
    void send(QEvent::Type type, QPointF at, Qt::MouseButton button) {
        const QWidget& window = *widget_.window();
        const QPointF inWindow = widget_.mapTo(&window, at);
        qt_handleMouseEvent(window.windowHandle(), inWindow,
                            window.windowHandle()->mapToGlobal(inWindow), buttons_, button, type,
                            Qt::NoModifier, time_ += 10);
        QCoreApplication::processEvents();
    }

    QWidget& widget_;
    Qt::MouseButtons buttons_;
    int time_ = 1000;
};
