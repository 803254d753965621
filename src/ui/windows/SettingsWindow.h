#pragma once

#include "ui/windows/PreferencesView.h"

#include <QDialog>

namespace marlevo {

class MarlevoApp;

/// The window of the user's settings. It does not keep the program from ending.
class SettingsWindow final : public QDialog {
    Q_OBJECT

public:
    /// The application must outlive the window and have preferences among its services.
    explicit SettingsWindow(MarlevoApp& app);

private:
    PreferencesView preferences_;
};

}  // namespace marlevo
