#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace marlevo {

/// Notices, while a mouse button is held down over a widget, that the release cannot reach the
/// widget: a modal panel has blocked its window, or a menu has opened and receives all events. The
/// loss of the focus is no such case: the widget still gets the events of a press it received.
class ReleaseWatch final : public QObject {
public:
    /// `onLost` is called at most once for each start(). The widget must outlive the watch.
    ReleaseWatch(const QWidget& widget, std::function<void()> onLost);

    void start();
    void stop();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool takesRelease(const QObject* watched, const QEvent& event) const;

    const QWidget& widget_;
    std::function<void()> onLost_;
};

}  // namespace marlevo
