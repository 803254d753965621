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
#include "tools/StrokeCapture.h"

#include <gtest/gtest.h>

using namespace marlevo;

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

    // Inside the fill, and on the erased stripe.
    pickColor(opened, {90, 45});
    EXPECT_EQ(*opened.selectedColor, (Color{1, 0, 0, 1}));
    pickColor(opened, {60, 45});
    EXPECT_EQ(*opened.selectedColor, white);
}

}  // namespace
