#pragma once

#include <functional>

namespace marlevo {

class DrawingDocument;
struct Services;

/// The document of the frontmost window at the time of the call, or null.
using FrontmostDocument = std::function<DrawingDocument*()>;

/// Asks for a drawing in an open panel and replaces the picture of the document that is frontmost
/// when the user confirms; without one the file is not even read. The file becomes that document's
/// file. A failure is one line "Load failed: …" on the document's console and changes nothing.
void openDocument(const Services& services, FrontmostDocument frontmostDocument);

}  // namespace marlevo
