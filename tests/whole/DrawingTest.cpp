#include "io/DocumentData.h"
#include "io/DocumentRecords.h"
#include "io/Export.h"
#include "io/Open.h"
#include "io/Save.h"
#include "model/DrawingDocument.h"
#include "render/RasterCompositing.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/EyeDropper.h"
#include "tools/FillTool.h"
#include "tools/Selection.h"
#include "tools/StrokeCapture.h"

#include <gtest/gtest.h>

namespace marlevo {
namespace {

TEST(Drawing, APictureMadeByTheToolsIsTheSameAfterSavingAndOpening) {
    DrawingDocument drawn;
    drawn.canvasSize = CanvasSize{120, 90};
    drawn.isShapeTool = true;
    drawn.currentShapeType = Stroke::ShapeType::rect;
    beginStroke(drawn, {20, 20});
    addPointToStroke(drawn, {100, 70});
    endStroke(drawn);
    drawn.selectedColor = Color{1, 0, 0, 1};
    performFill(drawn, {60, 45});
    drawn.isShapeTool = false;
    drawn.isEraser = true;
    beginStroke(drawn, {60, 0});
    addPointToStroke(drawn, {60, 90});
    endStroke(drawn);
    selectStroke(drawn, {24, 45});
    beginSelectDrag(drawn);
    updateSelectDrag(drawn, {5, 3});
    endSelectDrag(drawn);

    const TemporaryFolder folder;
    writeDocument(drawn, folder / "a.marlevo");
    DrawingDocument opened;
    const auto data = loadDrawing(folder / "a.marlevo", nullptr);
    ASSERT_TRUE(data);
    applyDocumentData(opened, *data);
    const auto picture = renderCGImage(drawn);
    ASSERT_TRUE(picture);
    EXPECT_EQ(renderCGImage(opened), *picture);
    EXPECT_EQ(renderPDFData(opened), renderPDFData(drawn));

    // Where the fill was moved away, where it was moved to, and the erased stripe.
    const auto colorAt = [&](Point at) {
        pickColor(opened, at);
        return *opened.selectedColor;
    };
    EXPECT_EQ(colorAt({23, 45}), white);
    EXPECT_EQ(colorAt({100, 45}), (Color{1, 0, 0, 1}));
    EXPECT_EQ(colorAt({60, 45}), white);
}

}  // namespace
}  // namespace marlevo
