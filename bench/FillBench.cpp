// The costs of a click with the fill tool, without the rendering of the picture.
//
// Each figure is the shortest of repeated runs, which other programs disturbed least. For
// comparison: the floor (reading the picture's bytes once with the same vectors) and OpenCV's flood
// fill, if it is installed.

#include "tests/tools/FillPictures.h"
#include "tools/FloodFill.h"
#include "tools/SimplifyPath.h"
#include "tools/TraceBoundary.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <vector>

#if MARLEVO_HAS_OPENCV
#include <opencv2/imgproc.hpp>
#endif

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "bench/FillBenchFloor.h"
#include <hwy/foreach_target.h>
// After foreach_target.h, which includes the floor's code once for each instruction set.
#include "bench/FillBenchFloor.h"

#include <benchmark/benchmark.h>

namespace marlevo {
namespace {

HWY_EXPORT(readOnce);

template <class Work>
double bestMilliseconds(int runs, Work work) {
    using Clock = std::chrono::steady_clock;
    double best = std::numeric_limits<double>::infinity();
    for (int run = 0; run < runs; ++run) {
        const Clock::time_point start = Clock::now();
        work();
        const std::chrono::duration<double, std::milli> time = Clock::now() - start;
        best = std::min(best, time.count());
    }
    return best;
}

RasterImage blankPicture(int width, int height) {
    return {width, height, std::vector<std::uint8_t>(std::size_t{4} * width * height, 255)};
}

/// Wavy lines three pixels wide in random colours on white.
RasterImage scribbledPicture(int width, int height, int strokes) {
    std::mt19937 random(11);
    std::uniform_real_distribution<double> unit(0, 1);
    std::vector<std::uint8_t> bytes(std::size_t{4} * width * height, 255);
    for (int stroke = 0; stroke < strokes; ++stroke) {
        const std::uint8_t color[4] = {255, static_cast<std::uint8_t>(random()),
                                       static_cast<std::uint8_t>(random()),
                                       static_cast<std::uint8_t>(random())};
        double x = unit(random) * width;
        double y = unit(random) * height;
        double heading = unit(random) * 6.3;
        for (int step = 0; step < 200; ++step) {
            heading += (unit(random) - 0.5) * 0.5;
            x += std::cos(heading);
            y += std::sin(heading);
            for (int i = 0; i < 9; ++i) {
                const int column = static_cast<int>(x) + i % 3;
                const int row = static_cast<int>(y) + i / 3;
                if (column < 0 || column >= width || row < 0 || row >= height) continue;
                std::copy_n(color, 4, bytes.data() + (std::size_t{4} * row * width + 4 * column));
            }
        }
    }
    return {width, height, std::move(bytes)};
}

/// The cell with the largest region among some random cells.
GridPoint seedOfALargeRegion(const RasterImage& image, std::mt19937& random) {
    GridPoint best;
    std::size_t largest = 0;
    for (int attempt = 0; attempt < 100; ++attempt) {
        const GridPoint seed{static_cast<int>(random() % image.width()),
                             static_cast<int>(random() % image.height())};
        const std::size_t size = floodFill(image, seed).size();
        if (size <= largest) continue;
        largest = size;
        best = seed;
    }
    return best;
}

GridPoint seedOfARegion(const RasterImage& image, std::size_t atLeast, std::size_t atMost,
                        std::mt19937& random) {
    while (true) {
        const GridPoint seed{static_cast<int>(random() % image.width()),
                             static_cast<int>(random() % image.height())};
        const std::size_t size = floodFill(image, seed).size();
        if (atLeast <= size && size <= atMost) return seed;
    }
}

double floorMilliseconds(const RasterImage& image) {
    return bestMilliseconds(
        25, [&] { benchmark::DoNotOptimize(HWY_DYNAMIC_DISPATCH(readOnce)(image.bytes())); });
}

#if MARLEVO_HAS_OPENCV
/// OpenCV fills pictures of one or three channels only, so it reads three quarters of the bytes.
double openCvMilliseconds(const RasterImage& image, GridPoint seed, int tolerance) {
    cv::Mat colors(image.height(), image.width(), CV_8UC3);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const auto pixel = image.pixel(x, y);
            colors.at<cv::Vec3b>(y, x) = {pixel[1], pixel[2], pixel[3]};
        }
    }
    const cv::Scalar reach = cv::Scalar::all(tolerance);
    return bestMilliseconds(9, [&] {
        cv::Mat mask = cv::Mat::zeros(image.height() + 2, image.width() + 2, CV_8UC1);
        cv::floodFill(colors, mask, {seed.x, image.height() - 1 - seed.y}, {}, nullptr, reach,
                      reach, 4 | cv::FLOODFILL_FIXED_RANGE | cv::FLOODFILL_MASK_ONLY);
        benchmark::DoNotOptimize(mask.data);
    });
}
#endif

void printRow(const char* what, double milliseconds, const char* limit = "") {
    std::printf("  %-46s %9.3f ms   %s\n", what, milliseconds, limit);
}

void blankCanvas() {
    const RasterImage image = blankPicture(3840, 2160);
    const GridPoint seed{1900, 1000};
    const double floor = floorMilliseconds(image);
    const double region =
        bestMilliseconds(200, [&] { benchmark::DoNotOptimize(floodFill(image, seed)); });
    std::puts("Blank 3840 x 2160");
    printRow("floor: read once", floor);
    printRow("region", region);
    std::printf("  %-46s %9.2f x    at most 2\n", "region / floor", region / floor);
#if MARLEVO_HAS_OPENCV
    cv::setNumThreads(1);
    const double openCv = openCvMilliseconds(image, seed, fillTolerance);
    printRow("OpenCV floodFill", openCv);
    std::printf("  %-46s %9.2f x    at least 5\n", "OpenCV / region", openCv / region);
#endif
}

void smallRegions(std::mt19937& random) {
    const RasterImage image = scribbledPicture(3840, 2160, 9000);
    std::puts("Small regions among 9,000 strokes on 3840 x 2160");
    for (const auto& [atLeast, atMost] : {std::pair{2000U, 9000U}, {50U, 150U}}) {
        const GridPoint seed = seedOfARegion(image, atLeast, atMost, random);
        std::printf("  %zu cells\n", floodFill(image, seed).size());
        const double region =
            bestMilliseconds(200, [&] { benchmark::DoNotOptimize(floodFill(image, seed)); });
        printRow("region", region);
#if MARLEVO_HAS_OPENCV
        const double openCv = openCvMilliseconds(image, seed, fillTolerance);
        printRow("OpenCV floodFill", openCv);
        std::printf("  %-46s %9.2f x    at least 4\n", "OpenCV / region", openCv / region);
#endif
    }
}

/// Region, trace and simplification of the click at `seed`, each alone and together.
void click(const char* title, const RasterImage& image, GridPoint seed, const char* traceLimit,
           const char* totalLimit) {
    const Region region = floodFill(image, seed);
    const std::vector<GridPoint> outline = traceOutline(region);
    const std::vector<GridPoint> kept = simplifyPath(outline, outlineEpsilon);
    std::printf("%s: %zu cells, outline %zu, kept %zu\n", title, region.size(), outline.size(),
                kept.size());
    constexpr int runs = 15;
    printRow("floor: read once", floorMilliseconds(image));
    printRow("region",
             bestMilliseconds(runs, [&] { benchmark::DoNotOptimize(floodFill(image, seed)); }));
    printRow("trace",
             bestMilliseconds(runs, [&] { benchmark::DoNotOptimize(traceOutline(region)); }));
    printRow("simplify", bestMilliseconds(runs, [&] {
                 benchmark::DoNotOptimize(simplifyPath(outline, outlineEpsilon));
             }));
    printRow("trace and simplify",
             bestMilliseconds(runs, [&] { benchmark::DoNotOptimize(traceBoundary(region)); }),
             traceLimit);
    printRow("all of it",
             bestMilliseconds(
                 runs, [&] { benchmark::DoNotOptimize(traceBoundary(floodFill(image, seed))); }),
             totalLimit);
#if MARLEVO_HAS_OPENCV
    printRow("OpenCV floodFill", openCvMilliseconds(image, seed, fillTolerance));
#endif
}

}  // namespace
}  // namespace marlevo

int main() {
    using namespace marlevo;
    std::mt19937 random(12);
    blankCanvas();

    const RasterImage scribble = scribbledPicture(1280, 720, 1000);
    click("1,000 strokes on 1280 x 720", scribble, seedOfALargeRegion(scribble, random), "",
          "less than 3");

    smallRegions(random);

    for (const int corridor : {1, 3}) {
        click(corridor == 1 ? "Spiral one cell wide on 3840 x 2160"
                            : "Spiral three cells wide on 3840 x 2160",
              fillpictures::pictureOf(fillpictures::spiral(3840, 2160, corridor)), {0, 0},
              "at most 100", "");
    }
    const Region noise = fillpictures::noise(3840, 2160, 0.65, random);
    GridPoint seed{1900, 1000};
    while (!noise.contains(seed))
        ++seed.x;
    click("Noise, 65 % of 3840 x 2160", fillpictures::pictureOf(noise), seed, "", "");
    return 0;
}
