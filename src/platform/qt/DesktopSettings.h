#pragma once

#include <QDBusMessage>
#include <QObject>

namespace marlevo {

/// What the user has told the desktop of how programs should behave. Asked for through the desktop
/// portal, in the background, and followed while the program runs; the defaults hold until the
/// answer is there and where nobody answers.
class DesktopSettings final : public QObject {
    Q_OBJECT

public:
    enum class ColorScheme : unsigned char { any, dark, light };

    /// The application's, which must exist.
    static DesktopSettings& instance();

    /// Whether things on screen may move; true by default.
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
