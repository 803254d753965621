// Starts like the program and ends when its window is painted: bench_start <milliseconds> <what>,
// the first being the monotonic clock at the start; what is "empty" for a window without content,
// "window", or "open" and a file.

#include "bench/window/Meter.h"
#include "bench/window/ProcessMemory.h"
#include "bench/window/RealWindow.h"
#include "platform/FilePanels.h"

#include <QMainWindow>

#include <cstdio>
#include <optional>

using namespace marlevo;

namespace {

/// A user who has chosen the file before he was asked.
class ChosenFile final : public FilePanels {
public:
    void showSavePanel(const SavePanelRequest& /*request*/, Completion /*completion*/) override {}
    void showOpenPanel(const OpenPanelRequest& /*request*/, Completion completion) override {
        completion_ = std::move(completion);
    }
    void choose(const std::filesystem::path& file) { completion_(file); }

private:
    Completion completion_;
};

double milliseconds() {
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

}  // namespace

int main(int argc, char* argv[]) {
    QApplication::setStyle(QStringLiteral("fusion"));
    Meter meter(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const double started = arguments.value(1).toDouble();
    const QString what = arguments.value(2);

    ChosenFile panels;
    std::optional<RealWindow> real;
    QMainWindow empty;
    if (what == "empty") {
        empty.resize(1500, 900);
        empty.show();
    } else {
        real.emplace(RealWindow::Sheet::showing, &panels);
        if (what == "open") {
            real->app().openDocument();
            panels.choose(arguments.value(3).toStdString());
        }
    }
    while (meter.paints() == 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const double painted = milliseconds() - started;
    Meter::settle();
    std::printf("{\"painted\": %.1f, \"resident\": %.0f}\n", painted, residentBytes());
    std::fflush(stdout);
    // The end is not what is measured.
    std::_Exit(EXIT_SUCCESS);
}
