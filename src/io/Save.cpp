#include "io/Save.h"

#include "io/DocumentRecords.h"
#include "io/DocumentWriter.h"
#include "io/FileTypes.h"
#include "io/WriteFile.h"
#include "model/DrawingDocument.h"
#include "platform/Console.h"
#include "platform/FilePanels.h"
#include "platform/ParallelFor.h"
#include "platform/WorkQueue.h"

#include <new>
#include <string>
#include <utility>

namespace marlevo {

namespace {

void reportFailedSave(Console* console, std::string_view reason) {
    if (console != nullptr) console->writeLine("Save failed: " + std::string(reason));
}

Result<TextBlocks> encodeFile(const DocumentSnapshot& snapshot, const std::filesystem::path& file) {
    try {
        return writeDocumentData(encodeDocumentData(snapshot));
    } catch (const std::bad_alloc&) {
        return Unexpected(outOfMemoryFailure(file));
    }
}

/// Returns true if the file is written. Its flush is posted.
bool writeSnapshot(const DocumentSnapshot& snapshot, const std::filesystem::path& to,
                   Console* console, WorkQueue* flushQueue) {
    // Encoded completely before the file is opened.
    const auto text = encodeFile(snapshot, to);
    auto written = text ? writeWholeFile(to, text->pieces()) : Unexpected(text.error());
    if (!written) {
        reportFailedSave(console, written.error().text);
        return false;
    }
    flushBehind(flushQueue, std::move(*written),
                [console](const Failure& failure) { reportFailedSave(console, failure.text); });
    return true;
}

}  // namespace

void writeDocument(DrawingDocument& document, const std::filesystem::path& to) {
    const Services& services = document.services();
    // An older state must not be written after this one.
    if (services.writeQueue) services.writeQueue->wait();
    if (writeSnapshot(snapshotOf(document), to, services.console, services.flushQueue))
        document.currentFileURL = to;
}

void writeDocumentBehind(const DrawingDocument& document, const std::filesystem::path& to,
                         std::function<void(bool)> ended) {
    const Services& services = document.services();
    const auto write = [to, console = services.console, flushQueue = services.flushQueue,
                        ended = std::move(ended)](const DocumentSnapshot& snapshot) {
        ended(writeSnapshot(snapshot, to, console, flushQueue));
    };
    if (services.writeQueue == nullptr) return write(snapshotOf(document));
    services.writeQueue->post([write, snapshot = snapshotOf(document)] {
        const OneCore oneCore;
        write(snapshot);
    });
}

void save(DrawingDocument& document) {
    if (const std::optional<std::filesystem::path> file = document.currentFileURL)
        writeDocument(document, *file);
    else
        saveAs(document);
}

void saveAs(DrawingDocument& document) {
    const Services& services = document.services();
    if (services.filePanels == nullptr) return;
    SavePanelRequest request{services.translate("Files", "Save Drawing"),
                             documentFileType(services), "Untitled.marlevo", std::nullopt};
    if (const std::optional<std::filesystem::path>& file = document.currentFileURL) {
        request.proposedName = file->filename().string();
        request.folder = file->parent_path();
    }
    services.filePanels->showSavePanel(
        request, [&document](const std::optional<std::filesystem::path>& file) {
            if (file) writeDocument(document, *file);
        });
}

}  // namespace marlevo
