#include "tools/ToolChoice.h"

#include "model/DrawingDocument.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <vector>

using namespace marlevo;

namespace {

using P = DocumentProperty;

std::vector<bool> flagsOf(const DrawingDocument& d) {
    return {d.isEraser, d.isFillTool, d.isShapeTool, d.isEyeDropper, d.isSelectTool};
}

TEST(ToolChoice, SetsOneFlagFirstThenClearsTheOthersAndTheSelection) {
    const struct {
        void (*choose)(DrawingDocument&);
        std::ptrdiff_t flag;  ///< among flagsOf(), -1 for none
    } cases[] = {{chooseBrush, -1},
                 {chooseEraser, 0},
                 {chooseFill, 1},
                 {[](DrawingDocument& d) { chooseShape(d, Stroke::ShapeType::ellipse); }, 2},
                 {chooseEyeDropper, 3},
                 {chooseSelect, 4}};
    for (const auto& [choose, flag] : cases) {
        std::vector<bool> flags(5);
        std::vector order{P::isEraser, P::isFillTool, P::isShapeTool, P::isEyeDropper,
                          P::isSelectTool};
        if (flag >= 0) {
            flags[flag] = true;
            std::rotate(order.begin(), order.begin() + flag, order.begin() + flag + 1);
        }
        const bool keepsSelection = flag == 4;
        if (!keepsSelection) order.push_back(P::selectedLayerID);

        DrawingDocument document;
        document.ensureLayers();
        document.selectedLayerID = document.layers->front().id;
        document.selectedStrokeIndex = 0;
        // Every flag is set wrongly, so that every assignment publishes.
        document.isEraser = !flags[0];
        document.isFillTool = !flags[1];
        document.isShapeTool = !flags[2];
        document.isEyeDropper = !flags[3];
        document.isSelectTool = !flags[4];
        std::vector<P> published;
        Reader reader(document.changeRegistry(), [&](P p) { published.push_back(p); });
        reader.observe([&] { (void)flagsOf(document), (void)*document.selectedLayerID; });
        choose(document);
        EXPECT_EQ(flagsOf(document), flags);
        EXPECT_EQ(published, order);
        EXPECT_EQ(document.selectedStrokeIndex->has_value(), keepsSelection);
    }
}

}  // namespace
