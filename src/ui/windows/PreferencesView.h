#pragma once

#include "platform/Preferences.h"
#include "ui/controls/NumberField.h"
#include "ui/controls/Switch.h"

#include <QWidget>

namespace marlevo {

/// Shows and edits the user's settings. A change is stored at once, a number when it is entered
/// (NumberField.h).
class PreferencesView final : public QWidget {
    Q_OBJECT

public:
    /// The preferences must outlive the view.
    explicit PreferencesView(Preferences& preferences, QWidget* parent = nullptr);

    /// At least 380 × 200 view points.
    QSize sizeHint() const override;

private:
    QLayout* makeSizeRow();
    void showValues();

    Preferences& preferences_;
    NumberField width_;
    NumberField height_;
    Switch autoSave_;
    Preferences::Observation changes_;
};

}  // namespace marlevo
