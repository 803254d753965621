#pragma once

#include "io/DocumentData.h"
#include "io/PaddedBytes.h"
#include "io/Result.h"

namespace marlevo {

/// Reads the contents of a document file.
///
/// Strict: the whole text must be well-formed JSON in UTF-8, including the parts that are not used.
/// A byte order mark at its start is skipped. All keys but `imageData` must be present, with values
/// of exactly their types. Numbers must fit a double, and `version` must be a whole 64-bit number
/// (1.0 is one). Unknown keys are ignored. The last value of a repeated key counts.
///
/// The error has the key path, as in "layers[3].strokes[17].points[4]: a number was expected", and
/// for malformed text the line and the column.
Result<DocumentData> readDocumentData(const PaddedBytes& contents);

}  // namespace marlevo
