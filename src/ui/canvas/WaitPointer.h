#pragma once

#include <QGuiApplication>

namespace marlevo {

/// Shows the wait pointer over all windows of the program during its lifetime.
class WaitPointer {
public:
    WaitPointer() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitPointer() { QGuiApplication::restoreOverrideCursor(); }
    WaitPointer(const WaitPointer&) = delete;
    WaitPointer& operator=(const WaitPointer&) = delete;
};

}  // namespace marlevo
