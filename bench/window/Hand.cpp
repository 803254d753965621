#include "bench/window/Hand.h"

#include <QEventLoop>
#include <QSocketNotifier>

#include <cstdlib>
#include <ctime>
#include <span>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xtest.h>

namespace marlevo {

namespace {

bool readAll(int file, void* to, std::size_t size) {
    auto* bytes = static_cast<char*>(to);
    while (size > 0) {
        const ssize_t count = ::read(file, bytes, size);
        if (count <= 0) return false;
        bytes += count;
        size -= static_cast<std::size_t>(count);
    }
    return true;
}

bool writeAll(int file, const void* from, std::size_t size) {
    const auto* bytes = static_cast<const char*>(from);
    while (size > 0) {
        const ssize_t count = ::write(file, bytes, size);
        if (count <= 0) return false;
        bytes += count;
        size -= static_cast<std::size_t>(count);
    }
    return true;
}

/// Sleeps until the next act is due, independent of the duration of the acts.
class Pace {
public:
    Pace() { clock_gettime(CLOCK_MONOTONIC, &next_); }

    void wait(std::int32_t microseconds) {
        next_.tv_nsec += microseconds % 1'000'000 * 1000L;
        next_.tv_sec += microseconds / 1'000'000 + next_.tv_nsec / 1'000'000'000;
        next_.tv_nsec %= 1'000'000'000;
        clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &next_, nullptr);
    }

private:
    timespec next_{};
};

/// The main loop of the hand's process.
void serve(int commands, int answers) {
    xcb_connection_t* const server = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(server)) return;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
    std::size_t count = 0;
    while (readAll(commands, &count, sizeof count)) {
        std::vector<HandAct> acts(count);
        if (!readAll(commands, acts.data(), count * sizeof(HandAct))) return;
        Pace pace;
        for (const HandAct& act : acts) {
            pace.wait(act.pause);
            xcb_test_fake_input(server, XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, root, act.x, act.y,
                                0);
            if (act.kind != HandAct::Kind::move)
                xcb_test_fake_input(server,
                                    act.kind == HandAct::Kind::press ? XCB_BUTTON_PRESS
                                                                     : XCB_BUTTON_RELEASE,
                                    act.button, XCB_CURRENT_TIME, root, act.x, act.y, 0);
            xcb_flush(server);
        }
        // The answer arrives when the server has processed all requests.
        free(xcb_query_pointer_reply(server, xcb_query_pointer(server, root), nullptr));
        const char done = 1;
        if (!writeAll(answers, &done, 1)) return;
    }
}

HandAct at(QPoint place, HandAct::Kind kind) {
    return {.kind = kind,
            .x = static_cast<std::int16_t>(place.x()),
            .y = static_cast<std::int16_t>(place.y())};
}

}  // namespace

Hand::Hand() {
    int commands[2];
    int answers[2];
    if (::pipe(commands) != 0 || ::pipe(answers) != 0) qFatal("no pipe");
    process_ = ::fork();
    if (process_ < 0) qFatal("no process");
    if (process_ == 0) {
        ::close(commands[1]);
        ::close(answers[0]);
        serve(commands[0], answers[1]);
        ::_exit(0);
    }
    ::close(commands[0]);
    ::close(answers[1]);
    toHand_ = commands[1];
    fromHand_ = answers[0];
}

Hand::~Hand() {
    ::close(toHand_);
    ::waitpid(process_, nullptr, 0);
    ::close(fromHand_);
}

void Hand::perform(const std::vector<HandAct>& acts) {
    const std::size_t count = acts.size();
    if (!writeAll(toHand_, &count, sizeof count) ||
        !writeAll(toHand_, acts.data(), count * sizeof(HandAct)))
        qFatal("the hand is gone");
    QEventLoop loop;
    QSocketNotifier answer(fromHand_, QSocketNotifier::Read);
    QObject::connect(&answer, &QSocketNotifier::activated, &loop, [&] {
        char done = 0;
        if (!readAll(fromHand_, &done, 1)) qFatal("the hand found no X server");
        loop.quit();
    });
    loop.exec();
}

std::vector<HandAct> dragThrough(const std::vector<QPoint>& way) {
    std::vector<HandAct> acts;
    acts.push_back(at(way.front(), HandAct::Kind::press));
    for (const QPoint place : std::span(way).subspan(1))
        acts.push_back(at(place, HandAct::Kind::move));
    acts.push_back(at(way.back(), HandAct::Kind::release));
    return acts;
}

std::vector<HandAct> clickAt(QPoint place) {
    return {at(place, HandAct::Kind::move), at(place, HandAct::Kind::press),
            at(place, HandAct::Kind::release)};
}

}  // namespace marlevo
