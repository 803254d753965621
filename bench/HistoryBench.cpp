// Time and memory of a drawing of 100,000 strokes with its whole history, compared with the same
// operations on plain vectors of strokes.

#include "model/DrawingDocument.h"
#include "tools/StrokeCapture.h"

#include <cstdio>
#include <ctime>
#include <malloc.h>
#include <random>
#include <vector>

namespace {

using namespace marlevo;

constexpr int pointsPerStroke = 40;

std::size_t bytesInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// Processor time of this process, independent of other programs.
double processorMicroseconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return 1e6 * static_cast<double>(time.tv_sec) + 1e-3 * static_cast<double>(time.tv_nsec);
}

std::vector<Point> walk(std::mt19937& random) {
    std::uniform_real_distribution<double> place(0, 1000);
    std::uniform_real_distribution<double> step(-8, 8);
    std::vector<Point> points{{place(random), place(random)}};
    while (points.size() < pointsPerStroke)
        points.push_back({points.back().x + step(random), points.back().y + step(random)});
    return points;
}

/// A document whose lists are vectors: a snapshot copies the records and the points of all strokes.
struct PlainStroke {
    std::vector<Point> points;
    Color color;
    double lineWidth = 3;
    double opacity = 1;
};

struct PlainDocument {
    using Strokes = std::vector<PlainStroke>;

    void draw(const std::vector<Point>& points) {
        undoStack.push_back(strokes);
        redoStack.clear();
        PlainStroke stroke;
        for (const Point& point : points)
            stroke.points.push_back(point);
        strokes.push_back(stroke);
    }
    void undo() { step(undoStack, redoStack); }
    void redo() { step(redoStack, undoStack); }

    void step(std::vector<Strokes>& source, std::vector<Strokes>& target) {
        target.push_back(strokes);
        strokes = source.back();
        source.pop_back();
    }

    Strokes strokes;
    std::vector<Strokes> undoStack;
    std::vector<Strokes> redoStack;
};

struct SharingDocument {
    void draw(const std::vector<Point>& points) {
        beginStroke(doc, points.front());
        for (std::size_t i = 1; i < points.size(); ++i)
            addPointToStroke(doc, points[i]);
        endStroke(doc);
    }
    void undo() { doc.undo(); }
    void redo() { doc.redo(); }

    DrawingDocument doc;
};

/// A document after 199 fills, each of which adds a layer.
struct LayeredDocument : SharingDocument {
    LayeredDocument() {
        for (int i = 0; i < 200; ++i)
            doc.layers.modifyAndPublish([](LayerList& all) { all.push_back(Layer("")); });
    }
};

/// The bytes of the strokes in the program's own list, without a history.
std::size_t bytesOfStrokes(int count) {
    std::mt19937 random(1);
    const std::size_t before = bytesInUse();
    StrokeList strokes;
    for (int i = 0; i < count; ++i) {
        Stroke stroke;
        stroke.points = PointList(walk(random));
        strokes.append(stroke);
    }
    return bytesInUse() - before;
}

template <typename Document>
void measure(const char* name, int count, int sample) {
    std::mt19937 random(1);
    std::vector<std::vector<Point>> walks(sample);
    for (auto& points : walks)
        points = walk(random);
    std::vector<double> times;
    times.reserve(count / sample);

    const std::size_t before = bytesInUse();
    Document document;
    for (int done = 0; done < count; done += sample) {
        const double start = processorMicroseconds();
        for (const auto& points : walks)
            document.draw(points);
        times.push_back((processorMicroseconds() - start) / sample);
    }
    const std::size_t total = bytesInUse() - before;
    const double first = times.front();
    const double last = times.back();

    const auto timeOf = [&](void (Document::*step)()) {
        const double start = processorMicroseconds();
        for (int i = 0; i < count; ++i)
            (document.*step)();
        return processorMicroseconds() - start;
    };
    const double undo = timeOf(&Document::undo);
    const double redo = timeOf(&Document::redo);

    const double ownBytes = static_cast<double>(bytesOfStrokes(count)) / count;
    const double perStep = static_cast<double>(total) / count;
    std::printf("%-8s %8d %9.2f %9.2f %7.2f %9.0f %10.0f %9.2f %9.2f\n", name, count, first, last,
                last / first, perStep - ownBytes, perStep, undo / 1000, redo / 1000);
}

}  // namespace

int main() {
    std::printf(
        "Strokes of %d points (%zu bytes) drawn one by one, a snapshot each.\n"
        "first, last: processor time a stroke, mean of 1,000 (of 250 beside the plain vectors)\n"
        "history: bytes a step beyond those of the strokes in a list; all: with them\n\n",
        pointsPerStroke, pointsPerStroke * sizeof(Point));
    std::printf("%-8s %8s %9s %9s %7s %9s %10s %9s %9s\n", "", "strokes", "first us", "last us",
                "ratio", "history B", "all B", "undos ms", "redos ms");
    for (const int count : {1000, 2000}) {
        measure<PlainDocument>("plain", count, 250);
        measure<SharingDocument>("sharing", count, 250);
    }
    measure<SharingDocument>("sharing", 100000, 1000);
    std::printf("\nWith 200 layers:\n");
    measure<LayeredDocument>("sharing", 20000, 1000);
}
