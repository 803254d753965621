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
        return writeDocumentData(document.encodeDocumentData());
    } catch (const std::bad_alloc&) {
        return Unexpected(outOfMemoryFailure(file));
    }
}

}  // namespace

void DrawingDocument::writeDocument(const std::filesystem::path& to) {
    // The whole text before the file is touched.
    const auto text = encodeFile(*this, to);
    if (!text) return reportFailedSave(services_.console, text.error().text);
    auto written = writeWholeFile(to, text->pieces());
    if (!written) return reportFailedSave(services_.console, written.error().text);

    flushBehind(services_.flushQueue, std::move(*written),
                [console = services_.console](const Failure& failure) {
                    reportFailedSave(console, failure.text);
                });
    currentFileURL = to;
}

void DrawingDocument::save() {
    if (const std::optional<std::filesystem::path> file = currentFileURL)
        writeDocument(*file);
    else
        saveAs();
}

void DrawingDocument::saveAs() {
    if (services_.filePanels == nullptr) return;
    SavePanelRequest request{services_.translate("Files", "Save Drawing"),
                             documentFileType(services_), "Untitled.marlevo", std::nullopt};
    if (const std::optional<std::filesystem::path>& file = currentFileURL) {
        request.proposedName = file->filename().string();
        request.folder = file->parent_path();
    }
    services_.filePanels->showSavePanel(request,
                                        [this](const std::optional<std::filesystem::path>& file) {
                                            if (file) writeDocument(*file);
                                        });
}

}  // namespace marlevo
