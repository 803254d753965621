#include "io/Open.h"

#include "io/DocumentReader.h"
#include "io/DocumentRecords.h"
#include "io/FileDescriptor.h"
#include "io/FileTypes.h"
#include "io/ReadFile.h"
#include "model/DrawingDocument.h"
#include "platform/Console.h"
#include "platform/FilePanels.h"
#include "platform/WorkQueue.h"

#include <new>
#include <string>

namespace marlevo {

namespace {

Result<DocumentData> readDocument(const std::filesystem::path& file) {
    try {
        const auto contents = readWholeFile(file);
        if (!contents) return Unexpected(contents.error());
        auto data = readDocumentData(*contents);
        if (!data) return Unexpected(Failure{file.string() + ": " + data.error().text});
        return data;
    } catch (const std::bad_alloc&) {
        return Unexpected(outOfMemoryFailure(file));
    }
}

}  // namespace

std::optional<DocumentData> loadDrawing(const std::filesystem::path& file, Console* console) {
    auto data = readDocument(file);
    if (data) return *std::move(data);
    if (console) console->writeLine("Load failed: " + data.error().text);
    return std::nullopt;
}

void replacePicture(DrawingDocument& document, const DocumentData& drawing,
                    const std::filesystem::path& file) {
    applyDocumentData(document, drawing);
    document.currentFileURL = file;
}

void openDocument(const Services& services, FrontmostDocument frontmostDocument,
                  std::function<void(DrawingDocument&)> opened) {
    if (services.filePanels == nullptr) return;
    services.filePanels->showOpenPanel(
        {services.translate("Files", "Open Drawing"), documentFileType(services)},
        [frontmostDocument = std::move(frontmostDocument),
         opened = std::move(opened)](const std::optional<std::filesystem::path>& file) {
            if (!file) return;
            DrawingDocument* const document = frontmostDocument();
            if (document == nullptr) return;
            // Auto-save may be writing this file.
            if (WorkQueue* const queue = document->services().writeQueue) queue->wait();
            const auto drawing = loadDrawing(*file, document->services().console);
            if (!drawing) return;
            replacePicture(*document, *drawing, *file);
            opened(*document);
        });
}

}  // namespace marlevo
