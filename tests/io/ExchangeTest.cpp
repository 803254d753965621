#include "io/Export.h"
#include "model/DrawingDocument.h"
#include "platform/Pasteboard.h"
#include "platform/Printer.h"
#include "render/RasterCompositing.h"
#include "tests/support/FakeImageCodec.h"
#include "tests/support/ManualQueue.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <memory>

using namespace marlevo;

namespace {

using testing::StartsWith;

struct FakePrinter : Printer {
    void print(const RasterImage& picture, Size size, const std::string& title) override {
        jobs.push_back({picture, size, title});
    }

    struct Job {
        RasterImage picture;
        Size size;
        std::string title;
    };
    std::vector<Job> jobs;
};

struct FakePasteboard : Pasteboard {
    void setImage(const RasterImage& picture) override { contents = picture; }

    std::optional<RasterImage> contents;
};

class Exchange : public testing::Test {
protected:
    Exchange() {
        Services services;
        services.mainQueue = &mainQueue;
        services.imageCodec = &codec;
        services.printer = &printer;
        services.pasteboard = &pasteboard;
        document = std::make_unique<DrawingDocument>(services);
        document->canvasSize = CanvasSize{20.7, 10.2};
        document->backgroundColor = Color{1, 0, 0, 1};
    }

    TemporaryFolder folder;
    ManualMainQueue mainQueue;
    FakeImageCodec codec;
    FakePrinter printer;
    FakePasteboard pasteboard;
    std::unique_ptr<DrawingDocument> document;
};

TEST_F(Exchange, ExportReplacesTheFile) {
    const auto file = folder / "picture";
    writeText(file, std::string(100000, 'x'));
    exportTo(*document, file, ExportFormat::bmp);
    const auto encoded = codec.encode(*renderCGImage(*document), ImageCodec::Format::bmp);
    EXPECT_EQ(textOf(file), std::string(encoded->begin(), encoded->end()));
    exportTo(*document, file, ExportFormat::pdf);
    EXPECT_THAT(textOf(file), StartsWith("%PDF-"));
}

TEST_F(Exchange, ExportThatFailsLeavesEverythingAsItWas) {
    exportTo(*document, folder / "missing/picture.png", ExportFormat::png);
    exportTo(*document, folder.path(), ExportFormat::pdf);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));

    const auto file = folder / "picture";
    writeText(file, "old");
    document->canvasSize = CanvasSize{0, 10};
    for (const ExportFormat format : allExportFormats)
        exportTo(*document, file, format);
    EXPECT_EQ(textOf(file), "old");
}

TEST_F(Exchange, PrintsThePictureOfTheCallAfterTheCurrentEvent) {
    const auto picture = renderCGImage(*document);
    printDocument(*document);
    document->currentFileURL = folder / "My drawing.marlevo";
    printDocument(*document);
    EXPECT_TRUE(printer.jobs.empty());
    document.reset();
    mainQueue.run();
    ASSERT_EQ(printer.jobs.size(), 2);
    EXPECT_EQ(printer.jobs[0].picture, *picture);
    EXPECT_EQ(printer.jobs[0].size, (Size{20.7, 10.2}));
    EXPECT_EQ(printer.jobs[0].title, "Marlevo");
    EXPECT_EQ(printer.jobs[1].title, "My drawing.marlevo");
}

TEST_F(Exchange, ACanvasWithoutPictureIsNeitherPrintedNorCopied) {
    copyToClipboard(*document);
    const auto copied = renderCGImage(*document);
    EXPECT_EQ(pasteboard.contents, copied);
    document->canvasSize = CanvasSize{0.5, 100};
    copyToClipboard(*document);
    printDocument(*document);
    EXPECT_EQ(pasteboard.contents, copied);
    EXPECT_FALSE(mainQueue.run());
}

}  // namespace
