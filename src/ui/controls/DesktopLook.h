#pragma once

#include <QObject>

namespace marlevo {

/// Tells when the desktop's font or palette has changed. The toolkit tells windows only, and leaves
/// out whoever has a font or palette of its own.
class DesktopLook final : public QObject {
    Q_OBJECT

public:
    /// The application's, which must exist.
    static DesktopLook& instance();

Q_SIGNALS:
    void fontChanged();
    void paletteChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit DesktopLook(QObject* application);
};

}  // namespace marlevo
