#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace marlevo {

/// Detects that the release of a mouse button cannot reach the widget that got the press: a modal
/// panel has blocked the widget's window, or a menu has opened and receives all events. After a
/// loss of the focus the widget still gets the release.
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
