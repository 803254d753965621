#include "io/AutoSave.h"
#include "io/DocumentData.h"
#include "io/DocumentRecords.h"
#include "io/Open.h"
#include "io/Save.h"
#include "model/DrawingDocument.h"
#include "platform/WorkQueue.h"
#include "tests/io/SmallDisk.h"
#include "tests/support/Drawing.h"
#include "tests/support/FakeServices.h"

#include <gmock/gmock.h>

#include <future>
#include <limits>
#include <thread>

using namespace marlevo;

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

/// Fakes of the desktop's services, which record all calls.
struct Desktop {
    Services services() {
        return {.filePanels = &panels,
                .console = &console,
                .preferences = &preferences,
                .sleepingClock = &clock,
                .writeQueue = &writeQueue,
                .flushQueue = &flushQueue};
    }

    TemporaryFolder folder;
    FakeConsole console;
    FakeFilePanels panels;
    FakePreferences preferences;
    FakeClock clock;
    WorkQueue flushQueue;
    WorkQueue writeQueue;
};

/// Opens the file in the document by the open panel.
void open(Desktop& desktop, DrawingDocument* document, const fs::path& file) {
    openDocument(
        desktop.services(), [document] { return document; }, [](auto&) {});
    desktop.panels.answer(file);
}

/// A picture with a value other than the default in all fields of a file.
void fill(DrawingDocument& document) {
    document.canvasSize = {800.5, -3};
    document.backgroundColor = {0.1, 2, -1, 0.4};
    document.backgroundIsTransparent = true;
    Layer lower("lower “one”");
    lower.isVisible = false;
    lower.isLocked = true;
    lower.opacity = 7;
    lower.imageData = Bytes({0, 255, 13});
    Layer upper("upper");
    for (const auto shape : Stroke::allShapeTypes)
        upper.strokes.append(makeStroke({{1, 0.1}, {-2e300, 5}}, 4, shape));
    upper.strokes.append({{}, {0.2, 0.3, 0.4, 0.5}, -1, 0.6, true, true});
    document.layers = LayerList{lower, upper};
}

TEST(SavingDocuments, asksOnlyWithoutAFileAndProposesItsNameAndFolder) {
    Desktop desktop;
    DrawingDocument document(desktop.services());
    save(document);
    ASSERT_TRUE(desktop.panels.save);
    EXPECT_EQ(desktop.panels.save->title, "Save Drawing");
    EXPECT_EQ(desktop.panels.save->proposedName, "Untitled.marlevo");
    EXPECT_THAT(desktop.panels.save->fileType.extensions, ElementsAre("marlevo"));
    EXPECT_FALSE(desktop.panels.save->folder);
    desktop.panels.answer(std::nullopt);
    EXPECT_FALSE(*document.currentFileURL);

    saveAs(document);
    desktop.panels.answer(desktop.folder / "a.marlevo");
    desktop.panels.save.reset();
    writeText(desktop.folder / "a.marlevo", "");
    save(document);
    EXPECT_FALSE(desktop.panels.save);
    EXPECT_THAT(textOf(desktop.folder / "a.marlevo"), StartsWith("{\n"));

    saveAs(document);
    EXPECT_EQ(desktop.panels.save->proposedName, "a.marlevo");
    EXPECT_EQ(desktop.panels.save->folder, desktop.folder.path());
}

TEST(SavingDocuments, aFailureIsOneLineAndChangesNothing) {
    Desktop desktop;
    DrawingDocument document(desktop.services());
    writeDocument(document, desktop.folder / "a.marlevo");
    const std::string before = textOf(desktop.folder / "a.marlevo");

    writeDocument(document, desktop.folder / "gone/b.marlevo");
    fill(document);
    document.canvasSize = {std::numeric_limits<double>::infinity(), 1};
    save(document);
    document.canvasSize = {1, 1};
    {
        const FileSizeLimit limit(100);
        save(document);
    }

    EXPECT_EQ(textOf(desktop.folder / "a.marlevo"), before);
    EXPECT_EQ(*document.currentFileURL, desktop.folder / "a.marlevo");
    const std::string folder = desktop.folder.path().string();
    EXPECT_THAT(desktop.console.lines,
                ElementsAre("Save failed: " + folder + "/gone/b.marlevo: No such file or directory",
                            "Save failed: canvasWidth: the number is not finite",
                            "Save failed: " + folder + "/a.marlevo: File too large"));
}

TEST(OpeningDocuments, replacesThePictureInAFixedOrderAndKeepsTheTools) {
    Desktop desktop;
    DrawingDocument source(desktop.services());
    fill(source);
    writeDocument(source, desktop.folder / "a.marlevo");

    DrawingDocument document(desktop.services());
    document.ensureLayers();
    document.addLayer();
    document.undo();
    document.addLayer();
    document.currentStroke = makeStroke({{1, 1}});
    document.zoom = 2;
    document.isEraser = true;
    document.selectedLayerID = document.layers->back().id;

    using P = DocumentProperty;
    std::vector<P> changes;
    Reader reader(document.changeRegistry(), [&](P property) { changes.push_back(property); });
    reader.observe([&] {
        (void)*document.layers, (void)*document.activeLayerIndex, (void)*document.currentStroke;
        (void)*document.isEraser, (void)*document.selectedLayerID, (void)*document.backgroundColor;
        (void)*document.backgroundIsTransparent, (void)*document.canvasSize, (void)*document.zoom;
        (void)*document.currentFileURL, (void)document.canUndo(), (void)document.canRedo();
    });
    open(desktop, &document, desktop.folder / "a.marlevo");

    EXPECT_THAT(changes, ElementsAre(P::canvasSize, P::backgroundColor, P::backgroundIsTransparent,
                                     P::layers, P::activeLayerIndex, P::zoom, P::undoStack,
                                     P::redoStack, P::currentStroke, P::currentFileURL));
    EXPECT_EQ(encodeDocumentData(document), encodeDocumentData(source));
    EXPECT_EQ(*document.currentFileURL, desktop.folder / "a.marlevo");
    EXPECT_NE(document.layers->front().id, source.layers->front().id);
    EXPECT_FALSE(document.layers->front().isLocked);
    EXPECT_EQ(*document.activeLayerIndex, 0);
    EXPECT_EQ(*document.zoom, 1.0);
    EXPECT_FALSE(document.canUndo() || document.canRedo() || document.currentStroke->has_value());
    EXPECT_TRUE(document.isEraser);
    EXPECT_TRUE(*document.selectedLayerID);
}

TEST(OpeningDocuments, actsOnTheDocumentThatIsFrontmostAtConfirmation) {
    Desktop desktop;
    DrawingDocument first(desktop.services());
    writeDocument(first, desktop.folder / "a.marlevo");
    first.currentFileURL = std::nullopt;
    DrawingDocument second(desktop.services());

    DrawingDocument* frontmost = &first;
    openDocument(
        desktop.services(), [&] { return frontmost; }, [](auto&) {});
    EXPECT_EQ(desktop.panels.open->title, "Open Drawing");
    EXPECT_THAT(desktop.panels.open->fileType.extensions, ElementsAre("marlevo"));
    frontmost = &second;
    desktop.panels.answer(std::nullopt);
    EXPECT_FALSE(*second.currentFileURL);
    desktop.panels.answer(desktop.folder / "a.marlevo");
    EXPECT_FALSE(*first.currentFileURL);
    EXPECT_EQ(*second.currentFileURL, desktop.folder / "a.marlevo");

    open(desktop, nullptr, desktop.folder / "a missing file");
    EXPECT_THAT(desktop.console.lines, IsEmpty());
}

TEST(OpeningDocuments, aFileThatCannotBeReadIsOneLineAndChangesNothing) {
    Desktop desktop;
    DrawingDocument document(desktop.services());
    fill(document);
    const DocumentData before = encodeDocumentData(document);
    const Uuid id = document.layers->front().id;

    writeText(desktop.folder / "broken", "{");
    writeText(desktop.folder / "incomplete", R"({"version": 1})");
    open(desktop, &document, desktop.folder / "broken");
    open(desktop, &document, desktop.folder / "incomplete");
    open(desktop, &document, desktop.folder / "missing");

    const std::string folder = desktop.folder.path().string();
    EXPECT_THAT(desktop.console.lines,
                ElementsAre(StartsWith("Load failed: " + folder + "/broken: "),
                            StartsWith("Load failed: " + folder + "/incomplete: "),
                            "Load failed: " + folder + "/missing: No such file or directory"));
    EXPECT_EQ(encodeDocumentData(document), before);
    EXPECT_EQ(document.layers->front().id, id);
    EXPECT_FALSE(*document.currentFileURL);
}

TEST(AutoSaving, writesEveryThirtySecondsIfThereIsAFileAndTheSettingIsOn) {
    using std::chrono::seconds;
    Desktop desktop;
    DrawingDocument document(desktop.services());
    auto autoSave = std::make_unique<AutoSave>(document);
    desktop.clock.advance(seconds(60));
    EXPECT_FALSE(desktop.panels.save);

    const fs::path file = desktop.folder / "a.marlevo";
    writeDocument(document, file);
    const auto isWrittenWithin = [&](seconds time) {
        fs::remove(file);
        desktop.clock.advance(time);
        desktop.writeQueue.wait();
        return fs::exists(file);
    };
    EXPECT_FALSE(isWrittenWithin(seconds(29)));
    EXPECT_TRUE(isWrittenWithin(seconds(1)));
    EXPECT_TRUE(isWrittenWithin(seconds(30)));

    desktop.preferences.set(preference::autoSaveEnabled, false);
    EXPECT_FALSE(isWrittenWithin(seconds(90)));
    desktop.preferences.set(preference::autoSaveEnabled, true);
    EXPECT_TRUE(isWrittenWithin(seconds(30)));

    fs::remove_all(desktop.folder.path());
    desktop.clock.advance(seconds(60));
    desktop.writeQueue.wait();
    EXPECT_THAT(desktop.console.lines,
                ElementsAre(StartsWith("Save failed: "), StartsWith("Save failed: ")));

    autoSave.reset();
    EXPECT_EQ(desktop.clock.sleepers(), 0u);
}

TEST(AutoSaving, writesTheMomentOfItsCycleBeforeALaterSave) {
    Desktop desktop;
    DrawingDocument document(desktop.services());
    document.ensureLayers();
    const fs::path file = desktop.folder / "a.marlevo";
    writeDocument(document, file);
    const AutoSave autoSave(document);
    const auto strokesInFile = [&] { return loadDrawing(file, nullptr)->layers[0].strokes.size(); };
    const auto beginWriting = [&](std::promise<void>& release) {
        desktop.writeQueue.post([&] { release.get_future().wait(); });
        addStroke(document, makeStroke(PointList({{1, 1}, {9, 9}})));
        desktop.clock.advance(AutoSave::interval);
        addStroke(document, makeStroke(PointList({{1, 9}, {9, 1}})));
    };
    std::promise<void> first;
    beginWriting(first);
    EXPECT_EQ(strokesInFile(), 0U);
    first.set_value();
    desktop.writeQueue.wait();
    EXPECT_EQ(strokesInFile(), 1U);

    std::promise<void> second;
    beginWriting(second);
    std::thread user([&] { save(document); });
    second.set_value();
    user.join();
    desktop.writeQueue.wait();
    EXPECT_EQ(strokesInFile(), 4U);
}

}  // namespace
