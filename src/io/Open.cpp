#include "io/Open.h"

#include "io/DocumentReader.h"
#include "io/FileTypes.h"
#include "io/ReadFile.h"
#include "model/DrawingDocument.h"
#include "platform/Console.h"
#include "platform/FilePanels.h"

#include <string>

namespace marlevo {

namespace {

Result<DocumentData> readDocument(const std::filesystem::path& file) {
    const auto contents = readWholeFile(file);
    if (!contents) return Failure{contents.error()};
    auto data = readDocumentData(*contents);
    if (!data) return Failure{file.string() + ": " + data.error()};
    return data;
}

void load(const std::filesystem::path& file, DrawingDocument& document) {
    const auto data = readDocument(file);
    if (!data) {
        if (Console* const console = document.services().console)
            console->writeLine("Load failed: " + data.error());
        return;
    }
    document.applyDocumentData(*data);
    document.currentFileURL = file;
}

}  // namespace

void openDocument(const Services& services, FrontmostDocument frontmostDocument) {
    if (services.filePanels == nullptr) return;
    services.filePanels->showOpenPanel(
        {services.translate("Files", "Open Drawing"), documentFileType(services)},
        [frontmostDocument =
             std::move(frontmostDocument)](const std::optional<std::filesystem::path>& file) {
            if (!file) return;
            if (DrawingDocument* const document = frontmostDocument()) load(*file, *document);
        });
}

}  // namespace marlevo
