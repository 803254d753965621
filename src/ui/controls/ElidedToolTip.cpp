#include "ui/controls/ElidedToolTip.h"

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QWidget>

#include <utility>

namespace marlevo {

ElidedToolTip::ElidedToolTip(QWidget* widget, std::function<QString()> elidedText)
    : QObject(widget), widget_(*widget), elidedText_(std::move(elidedText)) {
    widget->installEventFilter(this);
}

bool ElidedToolTip::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ToolTip || !widget_.toolTip().isEmpty())
        return QObject::eventFilter(watched, event);
    const QString text = elidedText_();
    if (text.isEmpty()) return false;
    // A tooltip has no format of plain text; a text that looks like HTML is escaped.
    const QString shown = Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), shown, &widget_);
    return true;
}

}  // namespace marlevo
