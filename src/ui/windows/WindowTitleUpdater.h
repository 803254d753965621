#pragma once

#include "model/Follower.h"

#include <QString>

#include <functional>

class QWidget;

namespace marlevo {

class DrawingDocument;

/// Keeps the title of a view's window equal to a text. The title changes after the event that
/// changes the text.
class WindowTitleUpdater final {
public:
    /// `title` reads the document. Document and view must outlive the updater.
    WindowTitleUpdater(DrawingDocument& document, QWidget& view, std::function<QString()> title);

private:
    Follower follower_;
};

}  // namespace marlevo
