#pragma once

#include "model/Follower.h"

#include <QString>

#include <functional>

class QWidget;

namespace marlevo {

class DrawingDocument;

/// Keeps the title of the window that a view is in equal to a text; each change arrives there after
/// the current event.
class WindowTitleUpdater final {
public:
    /// `title` reads the document, which must outlive the updater as the view must.
    WindowTitleUpdater(DrawingDocument& document, QWidget& view, std::function<QString()> title);

private:
    Follower follower_;
};

}  // namespace marlevo
