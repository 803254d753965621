#pragma once

#include <QDialog>

namespace marlevo {

class MarlevoApp;

/// The window of the user's settings. The program ends although it is open.
class SettingsWindow final : public QDialog {
    Q_OBJECT

public:
    /// The application must outlive the window and have preferences among its services.
    explicit SettingsWindow(MarlevoApp& app);
};

}  // namespace marlevo
