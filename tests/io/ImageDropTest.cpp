#include "io/ImageDrop.h"

#include "tests/support/ManualQueue.h"

#include <gtest/gtest.h>

#include <vector>

using namespace marlevo;

namespace {

class FakeProvider : public ItemProvider {
public:
    FakeProvider(bool isImage, Completion& load) : isImage_(isImage), load_(load) {}
    bool offersImage() const override { return isImage_; }
    void loadImage(Completion completion) override { load_ = std::move(completion); }

private:
    bool isImage_;
    Completion& load_;
};

class ImageDropTest : public testing::Test {
protected:
    ImageDropTest() : document({.mainQueue = &queue}), drop(std::in_place, document) {
        document.ensureLayers();
    }

    bool dropItems(std::vector<bool> areImages) {
        loads.resize(areImages.size());
        std::vector<std::unique_ptr<ItemProvider>> items;
        for (std::size_t i = 0; i < areImages.size(); ++i)
            items.push_back(std::make_unique<FakeProvider>(areImages[i], loads[i]));
        return drop->handleDrop(items);
    }

    ManualMainQueue queue;
    DrawingDocument document;
    std::optional<ImageDrop> drop;
    std::vector<ItemProvider::Completion> loads;
};

TEST_F(ImageDropTest, EachImageBecomesALayerAndAnUndoStepInTheOrderOfLoading) {
    ASSERT_TRUE(dropItems({true, false, true, true}));
    EXPECT_FALSE(loads[1]);
    loads[2](std::vector<std::uint8_t>());  // an empty file is a file
    loads[0](std::vector<std::uint8_t>{1, 2});
    loads[3](std::nullopt);
    EXPECT_EQ(document.layers->size(), 1u) << "nothing happens away from the main queue";
    queue.run();

    ASSERT_EQ(document.layers->size(), 3u);
    EXPECT_EQ((*document.layers)[1].imageData, Bytes({}));
    EXPECT_EQ((*document.layers)[2].imageData, Bytes({1, 2}));
    EXPECT_EQ((*document.layers)[2].name, "Image");
    EXPECT_EQ(document.activeLayerIndex, 2);
    document.undo();
    document.undo();
    EXPECT_EQ(document.layers->size(), 1u);
    EXPECT_FALSE(document.canUndo());
}

TEST_F(ImageDropTest, DropsWithoutImagesAreRefused) {
    EXPECT_FALSE(dropItems({}));
    EXPECT_FALSE(dropItems({false, false}));
}

TEST_F(ImageDropTest, ImagesThatArriveAfterTheirViewIsGoneAreDropped) {
    ASSERT_TRUE(dropItems({true, true}));
    loads[0](std::vector<std::uint8_t>{1});
    drop.reset();
    loads[1](std::vector<std::uint8_t>{1});
    EXPECT_EQ(queue.size(), 1u) << "at the program's end there is no queue any more";
    queue.run();
    EXPECT_EQ(document.layers->size(), 1u);
}

}  // namespace
