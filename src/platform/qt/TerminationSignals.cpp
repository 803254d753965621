#include "platform/qt/TerminationSignals.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace marlevo {

namespace {

constexpr std::array handled{SIGTERM, SIGHUP, SIGINT};

int writeEnd = -1;

extern "C" void passToEventLoop(int signal);

using Handler = void (*)(int);

Handler handlerOf(int signal) {
    struct sigaction current {};
    ::sigaction(signal, nullptr, &current);
    return current.sa_handler;
}

void removeHandlers() {
    for (const int signal : handled)
        if (handlerOf(signal) == passToEventLoop) std::signal(signal, SIG_DFL);
}

/// Only calls that are allowed in a handler: the event loop does the work.
extern "C" void passToEventLoop(int signal) {
    const int error = errno;
    removeHandlers();
    const auto number = static_cast<unsigned char>(signal);
    // A pipe that takes nothing leaves the program running, and the next signal ends it.
    [[maybe_unused]] const ssize_t written = ::write(writeEnd, &number, 1);
    errno = error;
}

}  // namespace

TerminationSignals::TerminationSignals(std::function<void()> beforeEnd)
    : beforeEnd_(std::move(beforeEnd)) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    readEnd_ = ends[0];
    writeEnd = ends[1];
    notifier_ = std::make_unique<QSocketNotifier>(readEnd_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { finish(); });
    // A signal that the parent has set to be ignored, as nohup(1) does, stays ignored.
    for (const int signal : handled)
        if (handlerOf(signal) != SIG_IGN) std::signal(signal, passToEventLoop);
}

TerminationSignals::~TerminationSignals() {
    if (readEnd_ < 0) return;
    removeHandlers();
    notifier_.reset();
    ::close(readEnd_);
    ::close(writeEnd);
}

void TerminationSignals::finish() {
    unsigned char number = 0;
    if (::read(readEnd_, &number, 1) != 1) return;
    beforeEnd_();
    // By default it ends the program: passToEventLoop() has removed the handler.
    std::raise(number);
}

}  // namespace marlevo
