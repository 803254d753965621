#pragma once

#include "io/DocumentData.h"
#include "io/Result.h"
#include "io/TextBlocks.h"

namespace marlevo {

/// The contents of a document file: UTF-8 JSON, indented by two spaces, one member per line, a
/// stroke's points on one line, numbers as writeNumber() writes them. Complete in memory; large
/// documents are encoded on all cores (platform/ParallelFor.h); the text does not depend on that.
///
/// Fails only when a number is not finite; the error names the first one's place.
Result<TextBlocks> writeDocumentData(const DocumentData& document);

}  // namespace marlevo
