// Checks for each text that the document reader accepts: the plain checker accepts it as JSON, and
// the document is the same after writing and reading.

#include "io/DocumentReader.h"
#include "io/DocumentWriter.h"
#include "io/JsonSyntax.h"

#include <cstdlib>

using namespace marlevo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const PaddedBytes contents(std::span(data, size));
    const auto document = readDocumentData(contents);
    if (!document) return 0;
    const bool hasMark = contents.text().starts_with("\xEF\xBB\xBF");
    if (JsonSyntax::findFault(contents.text().substr(hasMark ? 3 : 0))) std::abort();
    const std::string text = writeDocumentData(*document)->joined();
    const auto copy = readDocumentData(PaddedBytes(text));
    if (!copy || !(*copy == *document)) std::abort();
    if (writeDocumentData(*copy)->joined() != text) std::abort();
    return 0;
}
