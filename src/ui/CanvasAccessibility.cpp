#include "ui/CanvasAccessibility.h"

#include "ui/CanvasView.h"

#include <QAccessibleWidget>

namespace marlevo {

namespace {

QAccessibleInterface* makeCanvasInterface(const QString&, QObject* object) {
    auto* const view = qobject_cast<CanvasView*>(object);
    // Owned by the toolkit's cache of interfaces.
    return view ? new QAccessibleWidget(view, QAccessible::Canvas) : nullptr;
}

}  // namespace

void installCanvasAccessibility() { QAccessible::installFactory(makeCanvasInterface); }

}  // namespace marlevo
