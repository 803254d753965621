#include "ui/windows/WindowTitleUpdater.h"

#include "model/DrawingDocument.h"

#include <QWidget>

#include <utility>

namespace marlevo {

namespace {

/// The toolkit replaces "[*]" by a mark of unsaved changes, unless it is doubled.
QString literal(QString title) {
    return title.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

}  // namespace

WindowTitleUpdater::WindowTitleUpdater(DrawingDocument& document, QWidget& view,
                                       std::function<QString()> title)
    : follower_(document.changeRegistry(), [&view, title = std::move(title)] {
          QMetaObject::invokeMethod(
              &view, [&view, text = literal(title())] { view.window()->setWindowTitle(text); },
              Qt::QueuedConnection);
      }) {}

}  // namespace marlevo
