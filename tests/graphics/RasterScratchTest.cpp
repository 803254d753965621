#include "graphics/RasterScratch.h"

#include "graphics/Rasterizer.h"
#include "tests/graphics/Supersampling.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <new>
#include <thread>

namespace {

/// The number of allocations of this thread before one fails. Negative: none fails.
thread_local int allocationsLeft = -1;

void* allocate(std::size_t size, std::size_t alignment) {
    if (allocationsLeft == 0) throw std::bad_alloc();
    if (allocationsLeft > 0) --allocationsLeft;
    const std::size_t rounded = (size + alignment) / alignment * alignment;
    if (void* const memory = std::aligned_alloc(alignment, rounded)) return memory;
    throw std::bad_alloc();
}

}  // namespace

// Allocations of this whole test program, because vectors have no other seam. Not inlined: gcc
// warns of a mismatch where it sees the body of one operator, but not that of the other.
[[gnu::noinline]] void* operator new(std::size_t size) {
    return allocate(size, alignof(std::max_align_t));
}
void* operator new(std::size_t size, std::align_val_t alignment) {
    return allocate(size, static_cast<std::size_t>(alignment));
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, std::align_val_t) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept { std::free(memory); }

using namespace marlevo;

namespace {

const PackedColor opaque{{255, 255, 255, 255}, 255};

/// Each thread has its own scratch memory.
void inNewThread(const std::function<void()>& work) { std::thread(work).join(); }

}  // namespace

TEST(RasterScratch, HoldsNoTraceOfAShapeThatFailed) {
    Path zigzag;
    zigzag.move({3, 4});
    for (int i = 0; i < 40; ++i)
        zigzag.addLine({i % 2 ? 3.0 : 1300.0, 4.0 + 11 * i});
    Path next;
    next.move({700, 100});
    next.addLine({20, 240});
    next.addLine({650, 30});
    const IntRect area{0, 0, 1280, 480};  // several bands
    const auto drawNext = [&](PixelBuffer pixels, double width) {
        rasterizeStroke(next, width, DeviceFrame::yDown(1), BlendSink{pixels, opaque});
    };
    for (const double width : {5.0, 40.0}) {  // by distance, by area
        Canvas expected(area);
        drawNext(expected.buffer(), width);
        bool hasFailed = true;
        for (int allocations = 0; hasFailed; ++allocations) {
            inNewThread([&] {
                Canvas lost(area);
                OcclusionMask occlusion(area);
                std::vector<CoverageBlock> blocks;
                const BlendSink blend{lost.buffer(), opaque};
                const RecordSink record{area, true, occlusion, blocks};
                allocationsLeft = allocations;
                try {
                    rasterizeStroke(zigzag, width, DeviceFrame::yDown(1),
                                    width < 24 ? CoverageSink(record) : CoverageSink(blend));
                    hasFailed = false;
                } catch (const std::bad_alloc&) {
                }
                allocationsLeft = -1;
                Canvas canvas(area);
                drawNext(canvas.buffer(), width);
                ASSERT_EQ(canvas.bytes(), expected.bytes()) << width << ", " << allocations;
            });
        }
    }
}

/// The address sanitizer reports an access beyond the last cell of a row.
TEST(RasterScratch, HasRoomForEdgesInTheLastColumn) {
    for (int width = 13; width < 36; ++width) {
        inNewThread([width] {
            FlattenedPath outline;
            addPolygon(outline, {{width - 0.75, 0}, {width - 0.25, 1}, {width + 3.0, 1}});
            addPolygon(outline, {{width - 1.0, 0}, {width + 0.0, 0}, {width - 1.0, 0.5}});
            Canvas part(width, 1);
            Canvas wide(width + 20, 1);
            fillOutline(outline, {part.buffer(), opaque});
            fillOutline(outline, {wide.buffer(), opaque});
            EXPECT_EQ(part.alpha(width - 1, 0), wide.alpha(width - 1, 0));
            EXPECT_GT(part.alpha(width - 1, 0), 0);
        });
    }
}
