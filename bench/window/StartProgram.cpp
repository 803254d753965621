// Starts like the program and ends when its window is painted: bench_start <milliseconds> <what>,
// the first being the monotonic clock at the start; what is "empty" for a window without content,
// "window", or "open" and a file.

#include "bench/window/Meter.h"
#include "bench/window/ProcessMemory.h"
#include "bench/window/RealWindow.h"
#include "ui/controls/MarlevoStyle.h"

#include <QMainWindow>

#include <cstdio>
#include <optional>

using namespace marlevo;

namespace {

double milliseconds() {
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

}  // namespace

int main(int argc, char* argv[]) {
    Meter meter(argc, argv);
    QApplication::setStyle(new MarlevoStyle);
    const QStringList arguments = QApplication::arguments();
    const double started = arguments.value(1).toDouble();
    const QString what = arguments.value(2);

    std::optional<RealWindow> real;
    QMainWindow empty;
    if (what == "empty") {
        empty.resize(1500, 900);
        empty.show();
    } else {
        std::vector<std::filesystem::path> drawings;
        if (what == "open") drawings.emplace_back(arguments.value(3).toStdString());
        real.emplace(RealWindow::Sheet::showing, drawings);
    }
    while (meter.paints() == 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const double painted = milliseconds() - started;
    Meter::settle();
    std::printf("{\"painted\": %.1f, \"resident\": %.0f}\n", painted, residentBytes());
    std::fflush(stdout);
    // The end of the process is not measured.
    std::_Exit(EXIT_SUCCESS);
}
