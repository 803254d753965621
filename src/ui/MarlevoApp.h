#pragma once

#include "platform/Services.h"

#include <QPointer>

#include <vector>

namespace marlevo {

class DocumentWindow;

/// The application: opens document windows over one set of services.
class MarlevoApp {
public:
    /// The services must outlive the application.
    explicit MarlevoApp(const Services& services) : services_(services) {}

    /// Takes the windows still open with it.
    ~MarlevoApp();

    MarlevoApp(const MarlevoApp&) = delete;
    MarlevoApp& operator=(const MarlevoApp&) = delete;

    /// Opens a window with a fresh drawing, which goes away when it is closed.
    void openWindow();

private:
    Services services_;
    std::vector<QPointer<DocumentWindow>> windows_;
};

}  // namespace marlevo
