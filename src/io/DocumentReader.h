#pragma once

#include "io/DocumentData.h"
#include "io/PaddedBytes.h"
#include "io/Result.h"

namespace marlevo {

/// Reads the contents of a document file.
///
/// Strict: the text must be well-formed JSON in UTF-8 from end to end, also where it is not used; a
/// byte order mark before it is skipped. Every key but `imageData` must be there with a value of
/// exactly its type; numbers must fit a double and `version` must be a whole 64-bit number (1.0
/// is). Unknown keys are ignored; of a key that comes twice, the last value counts.
///
/// The error names the key path, and line and column where the text itself is broken, as in
/// "layers[3].strokes[17].points[4]: a number was expected".
Result<DocumentData> readDocumentData(const PaddedBytes& contents);

}  // namespace marlevo
