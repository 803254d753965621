// Measures the program in its real window on an X server: bench_window <measurement> [argument]…
// Each line of the output is a JSON object; scripts/bench.sh makes the table from them.

#include "bench/window/Bench.h"
#include "ui/controls/MarlevoStyle.h"

#include <cstdio>
#include <map>

using namespace marlevo;

int main(int argc, char* argv[]) {
    // Before the application object, which starts threads.
    Hand hand;
    Meter meter(argc, argv);
    // The same as in the program.
    QApplication::setStyle(new MarlevoStyle);
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
    QApplication::setQuitOnLastWindowClosed(false);

    const std::map<QString, void (*)(Bench&)> measurements{
        {"drawing", measureDrawing},      {"long-stroke", measureLongStroke},
        {"editing", measureEditing},      {"undoing", measureUndoing},
        {"first-show", measureFirstShow}, {"zooming", measureZooming},
        {"memory", measureMemory},        {"start", measureStart},
        {"make-document", makeDocument},  {"replay", replay}};
    QStringList arguments = QApplication::arguments().sliced(1);
    const bool isQuick = arguments.removeAll("--quick") > 0;
    const auto wanted = measurements.find(arguments.value(0));
    if (wanted == measurements.end()) {
        std::fputs("usage: bench_window <measurement> [--quick] [argument]...\n", stderr);
        for (const auto& [name, measure] : measurements)
            std::fprintf(stderr, "  %s\n", qPrintable(name));
        return EXIT_FAILURE;
    }
    Bench bench{hand, meter, arguments.sliced(1), isQuick};
    wanted->second(bench);
    return EXIT_SUCCESS;
}
