// What a PDF file of 10,000 strokes of 100 points costs, beside a peer: cairo, called with nothing
// around it. And how its size compares with the numbers that the drawing is made of.

#include "io/Export.h"
#include "model/DrawingDocument.h"

#include <cairo-pdf.h>

#include <charconv>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace marlevo;

constexpr int strokesOnPage = 10000;
constexpr int pointsPerStroke = 100;
constexpr Size page{1280, 720};

/// Of this process: other programs on the machine do not count.
double processorSeconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

std::vector<Stroke> drawing() {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> unit(0, 1);
    std::vector<Stroke> strokes(strokesOnPage);
    for (Stroke& stroke : strokes) {
        std::vector<Point> points{{unit(random) * page.width, unit(random) * page.height}};
        double direction = unit(random) * 6.28;
        while (points.size() < pointsPerStroke) {
            direction += unit(random) - 0.5;
            points.push_back({points.back().x + 4 * std::cos(direction),
                              points.back().y + 4 * std::sin(direction)});
        }
        stroke.points = PointList(std::move(points));
        stroke.color = {unit(random), unit(random), unit(random), 1};
        stroke.lineWidth = 3;
        stroke.opacity = 0.5;
    }
    return strokes;
}

/// The characters of the points as a document file holds them, without names and white space.
std::size_t digitsOf(const std::vector<Stroke>& strokes) {
    std::size_t count = 0;
    char digits[32];
    for (const Stroke& stroke : strokes) {
        for (const Point& point : stroke.points) {
            count += std::to_chars(digits, digits + sizeof digits, point.x).ptr - digits;
            count += std::to_chars(digits, digits + sizeof digits, point.y).ptr - digits;
        }
    }
    return count;
}

cairo_status_t count(void* total, const unsigned char*, unsigned length) {
    *static_cast<std::size_t*>(total) += length;
    return CAIRO_STATUS_SUCCESS;
}

std::size_t exportByCairo(const std::vector<Stroke>& strokes) {
    std::size_t size = 0;
    cairo_surface_t* surface =
        cairo_pdf_surface_create_for_stream(count, &size, page.width, page.height);
    cairo_t* context = cairo_create(surface);
    cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
    cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
    for (const Stroke& stroke : strokes) {
        cairo_set_source_rgba(context, stroke.color.red, stroke.color.green, stroke.color.blue,
                              stroke.opacity);
        cairo_set_line_width(context, stroke.lineWidth);
        Point from = stroke.points[0];
        cairo_move_to(context, from.x, from.y);
        for (std::size_t i = 0; i + 1 < stroke.points.size(); ++i) {
            const Point control = stroke.points[i];
            const Point next = stroke.points[i + 1];
            const Point to{(control.x + next.x) / 2, (control.y + next.y) / 2};
            cairo_curve_to(context, from.x + (control.x - from.x) * 2 / 3,
                           from.y + (control.y - from.y) * 2 / 3, to.x + (control.x - to.x) * 2 / 3,
                           to.y + (control.y - to.y) * 2 / 3, to.x, to.y);
            from = to;
        }
        const Point last = stroke.points[stroke.points.size() - 1];
        cairo_line_to(context, last.x, last.y);
        cairo_stroke(context);
    }
    cairo_destroy(context);
    cairo_surface_finish(surface);
    cairo_surface_destroy(surface);
    return size;
}

/// The most memory that the process has had since the last call, in MB.
double takePeakMegabytes() {
    double peak = 0;
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmHWM:")) peak = std::stod(line.substr(6)) / 1000;
    }
    std::ofstream("/proc/self/clear_refs") << 5;
    return peak;
}

struct Cost {
    double seconds;
    double megabytes;
};

template <typename Export>
Cost report(const char* name, Export run) {
    takePeakMegabytes();
    const double memory = takePeakMegabytes();
    const double before = processorSeconds();
    const std::size_t size = run();
    const Cost cost{processorSeconds() - before, static_cast<double>(size) / 1e6};
    std::printf("%-8s %8.2f s %10.1f MB %10.1f MB\n", name, cost.seconds, cost.megabytes,
                takePeakMegabytes() - memory);
    return cost;
}

}  // namespace

int main() {
    const std::vector<Stroke> strokes = drawing();
    DrawingDocument document;
    document.ensureLayers();
    document.layers.modifyAndPublish(
        [&](LayerList& layers) { layers[0].strokes = StrokeList(strokes); });

    std::printf("%d strokes of %d points as one PDF page, processor time, size, memory beside the "
                "document\n",
                strokesOnPage, pointsPerStroke);
    const Cost ours = report("ours", [&] { return renderPDFData(document).value().size(); });
    const Cost cairo = report("cairo", [&] { return exportByCairo(strokes); });
    std::printf("%-8s %21.1f MB\n", "points", static_cast<double>(digitsOf(strokes)) / 1e6);
    std::printf("%.1f x cairo's speed, %.2f x its size\n", cairo.seconds / ours.seconds,
                ours.megabytes / cairo.megabytes);
}
