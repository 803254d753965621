#include "io/Save.h"

#include "io/DocumentRecords.h"
#include "io/DocumentWriter.h"
#include "io/FileTypes.h"
#include "io/WriteFile.h"
#include "model/DrawingDocument.h"
#include "platform/Console.h"
#include "platform/FilePanels.h"

#include <new>
#include <string>

namespace marlevo {

namespace {

void reportFailedSave(Console* console, std::string_view reason) {
    if (console != nullptr) console->writeLine("Save failed: " + std::string(reason));
}

Result<TextBlocks> encodeFile(const DrawingDocument& document, const std::filesystem::path& file) {
    try {
        return writeDocumentData(encodeDocumentData(document));
    } catch (const std::bad_alloc&) {
        return Unexpected(outOfMemoryFailure(file));
    }
}

}  // namespace

void writeDocument(DrawingDocument& document, const std::filesystem::path& to) {
    const Services& services = document.services();
    // Encoded completely before the file is opened.
    const auto text = encodeFile(document, to);
    if (!text) return reportFailedSave(services.console, text.error().text);
    auto written = writeWholeFile(to, text->pieces());
    if (!written) return reportFailedSave(services.console, written.error().text);

    flushBehind(services.flushQueue, std::move(*written),
                [console = services.console](const Failure& failure) {
                    reportFailedSave(console, failure.text);
                });
    document.currentFileURL = to;
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
