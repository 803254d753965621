#pragma once

#include "ui/controls/ContinuousSlider.h"
#include "ui/controls/TextLabel.h"

#include <functional>

namespace marlevo {

/// A slider below its name and its value as text.
class LabeledSlider final : public QWidget {
    Q_OBJECT

public:
    using Display = std::function<QString(double)>;

    LabeledSlider(const QString& label, ContinuousSlider::Range range, Display display,
                  QWidget* parent = nullptr);

    /// Shows a value, which may be beyond the range. Emits nothing.
    void showValue(double value);

Q_SIGNALS:
    /// The user has chosen this value.
    void moved(double value);

private:
    Display display_;
    ContinuousSlider slider_;
    TextLabel label_;
    TextLabel value_;
};

}  // namespace marlevo
