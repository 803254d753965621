// The time from the start of the program to its first painted window, compared with an empty Qt
// window.

#include "bench/window/Bench.h"
#include "bench/window/RealWindow.h"
#include "bench/window/Scene.h"
#include "io/Save.h"

#include <QDir>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QProcess>

namespace marlevo {

namespace {

/// Runs bench_start once and returns its report.
QJsonObject startOnce(const QStringList& arguments) {
    QProcess program;
    QElapsedTimer now;
    now.start();
    program.start(QDir(QApplication::applicationDirPath()).filePath("bench_start"),
                  QStringList{QString::number(now.msecsSinceReference())} + arguments);
    if (!program.waitForFinished() || program.exitCode() != 0) qFatal("the start failed");
    return QJsonDocument::fromJson(program.readAllStandardOutput()).object();
}

void measure(Bench& bench, const QString& what, const QStringList& arguments, int rounds) {
    std::vector<double> painted;
    std::vector<double> resident;
    for (int i = 0; i < rounds; ++i) {
        const QJsonObject result = startOnce(arguments);
        painted.push_back(result["painted"].toDouble());
        resident.push_back(result["resident"].toDouble());
    }
    bench.report({{"row", "start"},
                  {"what", what},
                  {"painted", median(painted)},
                  {"resident", median(resident)}});
}

}  // namespace

void measureStart(Bench& bench) {
    const int rounds = bench.isQuick ? 3 : 11;
    measure(bench, "empty Qt window", {"empty"}, rounds);
    measure(bench, "Marlevo", {"window"}, rounds);
    if (bench.arguments.isEmpty()) return;
    measure(bench, "Marlevo with a drawing", {"open", bench.arguments.front()},
            bench.isQuick ? 1 : 5);
}

void makeDocument(Bench& bench) {
    constexpr CanvasSize canvas{1280, 720};
    DrawingDocument document;
    document.canvasSize = canvas;
    document.layers = scribbles(100'000, canvas);
    writeDocument(document, bench.arguments.value(0).toStdString());
}

}  // namespace marlevo
