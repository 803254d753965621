#pragma once

#include <QDBusVariant>
#include <QObject>

namespace marlevo {

/// Whether the user wants things on screen to move, as told to the desktop. Asked for through the
/// desktop portal, in the background, and followed while the program runs; true until the answer is
/// there and where nobody answers.
class MotionSetting final : public QObject {
    Q_OBJECT

public:
    /// The application's, which must exist.
    static MotionSetting& instance();

    bool isMotionWanted() const { return isWanted_; }

private Q_SLOTS:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    explicit MotionSetting(QObject* parent);

    bool isWanted_ = true;
};

}  // namespace marlevo
