#include "tools/ToolChoice.h"

#include "model/DrawingDocument.h"

#include <gmock/gmock.h>

#include <vector>

namespace marlevo {
namespace {

using P = DocumentProperty;

std::vector<bool> flagsOf(const DrawingDocument& d) {
    return {d.isEraser, d.isFillTool, d.isShapeTool, d.isEyeDropper, d.isSelectTool};
}

TEST(ToolChoice, SetsOneFlagFirstThenClearsTheOthersAndTheSelection) {
    const struct {
        void (*choose)(DrawingDocument&);
        std::vector<bool> flags;
        std::vector<P> order;
    } cases[] = {
        {chooseBrush,
         {false, false, false, false, false},
         {P::isEraser, P::isFillTool, P::isShapeTool, P::isEyeDropper, P::isSelectTool}},
        {chooseEraser,
         {true, false, false, false, false},
         {P::isEraser, P::isFillTool, P::isShapeTool, P::isEyeDropper, P::isSelectTool}},
        {chooseFill,
         {false, true, false, false, false},
         {P::isFillTool, P::isEraser, P::isShapeTool, P::isEyeDropper, P::isSelectTool}},
        {[](DrawingDocument& d) { chooseShape(d, Stroke::ShapeType::ellipse); },
         {false, false, true, false, false},
         {P::isShapeTool, P::isEraser, P::isFillTool, P::isEyeDropper, P::isSelectTool}},
        {chooseEyeDropper,
         {false, false, false, true, false},
         {P::isEyeDropper, P::isEraser, P::isFillTool, P::isShapeTool, P::isSelectTool}},
        {chooseSelect,
         {false, false, false, false, true},
         {P::isSelectTool, P::isEraser, P::isFillTool, P::isShapeTool, P::isEyeDropper}},
    };
    for (const auto& [choose, flags, order] : cases) {
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
        const bool keepsSelection = document.isSelectTool;
        std::vector<P> expected = order;
        if (!keepsSelection) expected.push_back(P::selectedLayerID);
        EXPECT_EQ(published, expected);
        EXPECT_EQ(document.selectedStrokeIndex->has_value(), keepsSelection);
    }
}

}  // namespace
}  // namespace marlevo
