#include "graphics/Rasterizer.h"
#include "graphics/RoundPen.h"
#include "graphics/SegmentInStrip.h"
#include "tests/graphics/Supersampling.h"
#include "tests/support/InstructionSets.h"

#include <gmock/gmock.h>

#include <limits>
#include <random>

using namespace marlevo;

namespace {

constexpr PackedColor opaque{{255, 255, 255, 255}, 255};
constexpr PackedColor half{{128, 128, 0, 64}, 128};

class RandomLines {
public:
    explicit RandomLines(unsigned seed) : random_(seed) {}

    double between(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random_);
    }

    FlattenedPath walk(int count, double step, double size) {
        std::vector<Point> points{{between(0, size), between(0, size)}};
        while (static_cast<int>(points.size()) < count) {
            const Point last = points.back();
            points.push_back({last.x + between(-step, step), last.y + between(-step, step)});
        }
        return polyline(points, between(0, 1) < 0.3);
    }

private:
    std::mt19937 random_;
};

std::vector<std::uint8_t> drawn(const FlattenedPath& path, double width, PackedColor color,
                                int size) {
    Canvas canvas(size, size);
    strokeByDistance(path, width, BlendSink{canvas.buffer(), color});
    return canvas.bytes();
}

}  // namespace

TEST(RasterizeByDistance, VectorsGiveTheBytesOfScalarCode) {
    constexpr int size = 96;
    RandomLines random(4);
    for (int round = 0; round < 30; ++round) {
        const FlattenedPath path = random.walk(8, round % 3 == 0 ? 60 : 4, size);
        const double width = random.between(0.2, 16);
        const RoundPen pen(width);

        Canvas expected(size, size);
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                float least = 1e30F;
                for (const auto& part : path.contours) {
                    const auto points = path.pointsOf(part);
                    for (std::size_t i = part.closed ? 0 : 1; i < points.size(); ++i) {
                        const MeasuredSegment line(points[i == 0 ? points.size() - 1 : i - 1],
                                                   points[i]);
                        const SegmentInStrip segment(line, x & -8);
                        least = std::min(
                            least, segment.squaredDistance(static_cast<float>(x & 7),
                                                           static_cast<float>(y - line.anchorRow)));
                    }
                }
                blendPixel(expected.buffer().pixel(x, y), half,
                           static_cast<std::uint8_t>(pen.coverage(least)));
            }
        }
        withEveryInstructionSet([&](const char* target) {
            EXPECT_EQ(drawn(path, width, half, size), expected.bytes()) << target << ' ' << width;
        });
    }
}

TEST(RasterizeByDistance, AgreesWithSupersampledTruth) {
    constexpr int size = 64;
    RandomLines random(6);
    for (int round = 0; round < 20; ++round) {
        const FlattenedPath path = random.walk(10, 12, size);
        const double width = random.between(2, 12);
        Canvas canvas(size, size);
        strokeByDistance(path, width, BlendSink{canvas.buffer(), opaque});
        double sum = 0;
        int count = 0;
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                const double exact = 255 * coverageByRoundPen(x, y, path, width / 2);
                if (exact == 0 && canvas.alpha(x, y) == 0) continue;
                const double off = std::abs(canvas.alpha(x, y) - exact);
                // In a notch between two edges only the nearer one counts.
                ASSERT_LT(off, 110) << x << ", " << y << ", width " << width;
                sum += off;
                ++count;
            }
        }
        EXPECT_LE(sum, 7 * count) << width;
    }
}

TEST(RasterizeByDistance, GetsLighterEvenlyAsThePenGetsThinner) {
    int last = 0;
    for (double width = 0.05; width < 2; width += 0.05) {
        Canvas canvas(20, 20);
        strokeByDistance(polyline({{2, 10.5}, {18, 10.5}}), width,
                         BlendSink{canvas.buffer(), opaque});
        int sum = 0;
        for (int y = 0; y < 20; ++y)
            sum += canvas.alpha(10, y);
        EXPECT_NEAR(sum, 255 * width, 2);
        EXPECT_GT(sum, last);
        last = sum;
    }
}
