#pragma once

#include <QObject>

namespace marlevo {

/// Whether the application was last used by the keyboard or by the pointer. Follows both from the
/// first call of instance() on.
class LastInput final : public QObject {
public:
    static LastInput& instance();

    /// False before the first input. A modifier alone does not count.
    bool wasKey() const { return wasKey_; }

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    LastInput();

    bool wasKey_ = false;
};

}  // namespace marlevo
