#pragma once

#include <QDBusMessage>
#include <QObject>

namespace marlevo {

/// The user's settings for all programs of the desktop, from the desktop portal. They are requested
/// in the background and updated while the program runs. The defaults hold before the first answer
/// and on desktops without a portal.
class DesktopSettings final : public QObject {
    Q_OBJECT

public:
    enum class ColorScheme : unsigned char { any, dark, light };

    /// The one object, a child of the application object, which must exist.
    static DesktopSettings& instance();

    /// Whether animations are on. True by default.
    bool isMotionWanted() const { return isMotionWanted_; }

    ColorScheme colorScheme() const { return colorScheme_; }

Q_SIGNALS:
    void colorSchemeChanged();

private Q_SLOTS:
    void settingChanged(const QDBusMessage& message);

private:
    explicit DesktopSettings(QObject* parent);
    void ask(const QString& group, const QString& key);
    void take(const QString& group, const QString& key, const QVariant& value);

    bool isMotionWanted_ = true;
    ColorScheme colorScheme_ = ColorScheme::any;
};

}  // namespace marlevo
