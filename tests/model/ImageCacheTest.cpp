#include "model/ImageCache.h"

#include "model/LayerList.h"
#include "tests/support/FakeImageCodec.h"

#include <gtest/gtest.h>

#include <atomic>

namespace marlevo {
namespace {

class CountingCodec : public FakeImageCodec {
public:
    std::optional<RasterImage> decode(std::span<const std::uint8_t> file) const override {
        ++decoded;
        return FakeImageCodec::decode(file);
    }

    mutable std::atomic<int> decoded = 0;
};

Layer imageLayer(std::uint8_t shade) {
    Layer layer("Image");
    layer.imageData = Bytes({1, 1, shade, shade, shade, 255});
    return layer;
}

TEST(ImageCache, DecodesAheadWhatIsSeenAndEachFileOnce) {
    const CountingCodec codec;
    ImageCache images(&codec);
    LayerList layers;
    for (std::uint8_t shade = 0; shade < 7; ++shade)
        layers.push_back(imageLayer(shade));
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

}  // namespace
}  // namespace marlevo
