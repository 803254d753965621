#include "ui/MarlevoApp.h"

#include "ui/DocumentWindow.h"

#include <algorithm>

namespace marlevo {

MarlevoApp::~MarlevoApp() {
    for (const QPointer<DocumentWindow>& window : windows_)
        delete window;
}

void MarlevoApp::openWindow() {
    std::erase_if(windows_, [](const auto& window) { return window.isNull(); });
    auto* window = new DocumentWindow(services_);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
    windows_.emplace_back(window);
}

}  // namespace marlevo
