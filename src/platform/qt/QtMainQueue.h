#pragma once

#include "platform/MainQueue.h"

#include <QObject>

namespace marlevo {

/// The main queue on Qt's event loop. To be made and destroyed on the user-interface thread; work
/// still waiting at its destruction, or posted when the loop runs no more, is dropped.
class QtMainQueue final : public MainQueue {
public:
    void post(std::function<void()> work) override;

private:
    class Receiver final : public QObject {
    public:
        bool event(QEvent* event) override;
    };

    Receiver receiver_;
};

}  // namespace marlevo
