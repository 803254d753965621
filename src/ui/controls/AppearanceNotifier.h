#pragma once

#include <QObject>

namespace marlevo {

/// Emits a signal after each change of the desktop's font or palette. The toolkit's own events
/// reach only windows, and not widgets with a font or palette of their own.
class AppearanceNotifier final : public QObject {
    Q_OBJECT

public:
    /// The application's, which must exist.
    static AppearanceNotifier& instance();

Q_SIGNALS:
    void fontChanged();
    void paletteChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit AppearanceNotifier(QObject* application);
};

}  // namespace marlevo
