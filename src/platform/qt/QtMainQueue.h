#pragma once

#include "platform/MainQueue.h"

#include <QObject>

namespace marlevo {

/// The main queue on Qt's event loop. Must be created and destroyed on the user-interface thread.
/// Work that has not run at its destruction, or that is posted after the loop has ended, is
/// dropped.
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
