// The time of a save on the user-interface thread: encoding the document and writing the file.
// Without the flush to the disk, which another thread does.

#include "io/DocumentData.h"
#include "io/DocumentRecords.h"
#include "io/DocumentWriter.h"
#include "io/Save.h"
#include "model/DrawingDocument.h"
#include "platform/WorkQueue.h"
#include "tests/support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <random>

namespace marlevo {
namespace {

/// Draws strokes of 100 points, whose coordinates have all digits of a double.
void draw(DrawingDocument& document, std::int64_t strokeCount) {
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> coordinate(0, 1280);
    std::vector<Stroke> strokes;
    for (std::int64_t i = 0; i < strokeCount; ++i) {
        std::vector<Point> points;
        for (int j = 0; j < 100; ++j)
            points.push_back({coordinate(random), coordinate(random)});
        strokes.push_back({PointList(std::move(points)), black, 3, 1});
    }
    Layer layer("Background");
    layer.strokes = StrokeList(std::move(strokes));
    document.layers = LayerList{layer};
}

void saveIntoTheSameFile(benchmark::State& state) {
    const TemporaryFolder folder;
    DrawingDocument document;
    draw(document, state.range(0));
    for (auto _ : state)
        writeDocument(document, folder / "drawing.marlevo");
    state.SetBytesProcessed(static_cast<std::int64_t>(
        state.iterations() * std::filesystem::file_size(folder / "drawing.marlevo")));
}

void encodeOnly(benchmark::State& state) {
    DrawingDocument document;
    draw(document, state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(writeDocumentData(encodeDocumentData(document)));
}

/// What auto-save takes of the user-interface thread.
void beginAutoSave(benchmark::State& state) {
    const TemporaryFolder folder;
    WorkQueue writeQueue;
    DrawingDocument document({.writeQueue = &writeQueue});
    draw(document, state.range(0));
    for (auto _ : state) {
        writeDocumentBehind(document, folder / "drawing.marlevo", [](bool) {});
        state.PauseTiming();
        writeQueue.wait();
        state.ResumeTiming();
    }
}

BENCHMARK(beginAutoSave)->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(saveIntoTheSameFile)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MeasureProcessCPUTime();
BENCHMARK(encodeOnly)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MeasureProcessCPUTime();

}  // namespace
}  // namespace marlevo

BENCHMARK_MAIN();
