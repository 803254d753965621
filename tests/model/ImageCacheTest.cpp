#include "model/ImageCache.h"

#include "tests/support/Drawing.h"
#include "tests/support/FakeImageCodec.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

using namespace marlevo;

namespace {

Layer imageOf(std::uint8_t shade) { return imageLayer({1, 1, shade, shade, shade, 255}); }

TEST(ImageCache, DecodesAheadWhatIsSeenAndEachFileOnce) {
    const CountingImageCodec codec;
    ImageCache images(&codec);
    LayerList layers;
    for (std::uint8_t shade = 0; shade < 7; ++shade)
        layers.push_back(imageOf(shade));
    layers.push_back(layers[2]);  // the same file again
    layers[3].isVisible = false;
    Layer broken("Broken");
    broken.imageData = Bytes({9, 9, 9});
    layers.push_back(broken);

    images.image(*layers[5].imageData);
    images.decodeAhead(layers);
    images.decodeAhead(layers);
    EXPECT_EQ(codec.decoded, 7);
    for (std::size_t i = 0; i < layers.size(); ++i) {
        const Bytes& file = *std::as_const(layers)[i].imageData;
        const bool isKnown = i != 3 && i != 8;
        ASSERT_EQ(images.known(file).has_value(), isKnown) << i;
        if (isKnown) {
            EXPECT_EQ(images.image(file)->bytes()[0], file.span()[2]) << i;
        }
    }
    EXPECT_EQ(codec.decoded, 7);

    layers[0].isVisible = false;
    images.retainOnly(layers);
    EXPECT_FALSE(images.known(*layers[0].imageData));
    EXPECT_TRUE(images.known(*layers[1].imageData));
    EXPECT_EQ(ImageCache(nullptr).image(*layers[1].imageData), std::nullopt);
}

constexpr std::size_t bytesOfImage = 4;

TEST(ImageCache, KeepsWhatWasUsedLastWithinItsBound) {
    const CountingImageCodec codec;
    ImageCache images(&codec, 2 * bytesOfImage);
    const Bytes first = *imageOf(1).imageData;
    const Bytes second = *imageOf(2).imageData;
    const Bytes third = *imageOf(3).imageData;
    images.image(first);
    images.image(second);
    images.image(first);
    images.image(third);
    EXPECT_TRUE(images.known(first));
    EXPECT_FALSE(images.known(second));
    EXPECT_TRUE(images.known(third));
    EXPECT_EQ(codec.decoded, 3);

    Layer layer("Image");
    layer.imageData = third;
    images.retainOnly({layer});
    images.image(second);
    EXPECT_TRUE(images.known(third)) << "the dropped image has made room";

    ImageCache tooSmall(&codec, bytesOfImage - 1);
    EXPECT_TRUE(tooSmall.image(first));
    EXPECT_TRUE(tooSmall.image(first));
    EXPECT_EQ(codec.decoded, 6);
}

TEST(ImageCache, DecodesNoMoreAheadThanItKeeps) {
    const CountingImageCodec codec;
    const std::size_t batch = std::max(std::thread::hardware_concurrency(), 1U);
    ImageCache images(&codec, 2 * batch * bytesOfImage + 1);
    LayerList layers;
    for (std::size_t i = 0; i < 5 * batch; ++i)
        layers.push_back(imageOf(static_cast<std::uint8_t>(i)));
    images.decodeAhead(layers);
    EXPECT_EQ(codec.decoded, static_cast<int>(2 * batch));
    for (std::size_t i = 0; i < layers.size(); ++i)
        EXPECT_EQ(images.known(*std::as_const(layers)[i].imageData).has_value(), i < 2 * batch);
}

TEST(ImageCache, DecodesOnSeveralThreadsAtOnce) {
    if (std::thread::hardware_concurrency() < 2) GTEST_SKIP() << "one core";
    /// Each call waits until another one has begun on another thread.
    struct WaitingCodec : FakeImageCodec {
        std::optional<RasterImage> decode(std::span<const std::uint8_t> file) const override {
            std::unique_lock lock(mutex);
            ++begun;
            changed.notify_all();
            if (!changed.wait_for(lock, std::chrono::seconds(20), [&] { return begun >= 2; }))
                ADD_FAILURE() << "no second thread";
            return FakeImageCodec::decode(file);
        }
        mutable std::mutex mutex;
        mutable std::condition_variable changed;
        mutable int begun = 0;
    };
    const WaitingCodec codec;
    ImageCache(&codec).decodeAhead({imageOf(1), imageOf(2)});
    EXPECT_EQ(codec.begun, 2);
}

}  // namespace
