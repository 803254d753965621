#pragma once

#include "io/DocumentData.h"
#include "io/Result.h"
#include "io/TextBlocks.h"

namespace marlevo {

/// The contents of a document file: UTF-8 JSON, indented by two spaces, one member per line, the
/// points of a stroke on one line, numbers as in writeNumber(). Encoded on all cores
/// (platform/ParallelFor.h). The text is the same for every number of cores.
///
/// Fails only if a number is not finite. The error has the key path of the first such number.
Result<TextBlocks> writeDocumentData(const DocumentData& document);

}  // namespace marlevo
