#pragma once

#include <filesystem>
#include <functional>

namespace marlevo {

class DrawingDocument;

/// Writes the drawing to the file, in place and whole, and makes it the document's file. A failure
/// is one line "Save failed: …" on the console and changes nothing.
void writeDocument(DrawingDocument& document, const std::filesystem::path& to);

/// Writes the drawing as it is now to the file, on the write queue, in place and whole. Returns at
/// once. A later writeDocument() waits for it. A failure is one line "Save failed: …" on the
/// console. Without a write queue it writes before it returns.
/// `ended` is called with the success after the write, on the thread that writes.
void writeDocumentBehind(const DrawingDocument& document, const std::filesystem::path& to,
                         std::function<void(bool)> ended);

/// Writes to the document's file; without one, asks as saveAs() does.
void save(DrawingDocument& document);

/// Asks for a file in a save panel, then writes to it. The panel refers to the document and must be
/// closed before the document is destroyed.
void saveAs(DrawingDocument& document);

}  // namespace marlevo
