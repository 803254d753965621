#pragma once

#include "io/DocumentData.h"

#include <filesystem>
#include <functional>
#include <optional>

namespace marlevo {

class Console;
class DrawingDocument;
struct Services;

/// The document of the frontmost window at the time of the call, or null.
using FrontmostDocument = std::function<DrawingDocument*()>;

/// Reads a drawing. A failure is one line "Load failed: …" on the console, which may be null.
std::optional<DocumentData> loadDrawing(const std::filesystem::path& file, Console* console);

/// Shows the drawing in place of the document's picture; its file becomes the document's file.
void replacePicture(DrawingDocument& document, const DocumentData& drawing,
                    const std::filesystem::path& file);

/// Asks for a drawing in an open panel and replaces the picture of the document that is frontmost
/// when the user confirms. The file becomes that document's file, and `opened` is called. If no
/// document is frontmost, the file is not read. A failure is one line "Load failed: …" on the
/// document's console and changes nothing.
void openDocument(const Services& services, FrontmostDocument frontmostDocument,
                  std::function<void(DrawingDocument&)> opened);

}  // namespace marlevo
