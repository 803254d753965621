#include "platform/qt/Compositing.h"

#include <QGuiApplication>

#include <cstdlib>
#include <memory>
#include <string>
#include <xcb/xcb.h>

namespace marlevo {

namespace {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

int defaultScreen() {
    char* host = nullptr;
    int display = 0;
    int screen = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen) != 0) std::free(host);
    return screen;
}

}  // namespace

bool isScreenComposited() {
    const auto* const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr) return true;
    xcb_connection_t* const server = x11->connection();
    // The selection that a compositing manager owns, as EWMH defines.
    const std::string name = "_NET_WM_CM_S" + std::to_string(defaultScreen());
    const std::unique_ptr<xcb_intern_atom_reply_t, Free> atom(xcb_intern_atom_reply(
        server, xcb_intern_atom(server, 0, std::uint16_t(name.size()), name.data()), nullptr));
    if (!atom) return false;
    const std::unique_ptr<xcb_get_selection_owner_reply_t, Free> reply(
        xcb_get_selection_owner_reply(server, xcb_get_selection_owner(server, atom->atom),
                                      nullptr));
    return reply && reply->owner != XCB_NONE;
}

}  // namespace marlevo
