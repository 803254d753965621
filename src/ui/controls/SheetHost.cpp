#include "ui/controls/SheetHost.h"

#include "ui/controls/ControlPainting.h"
#include "ui/controls/DropShadow.h"
#include "ui/controls/SemanticColors.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>

namespace marlevo {

namespace {

constexpr double cornerRadius = 10;
constexpr int leastMargin = 8;

}  // namespace

SheetHost::SheetHost(QWidget& content)
    // A subwindow, because Tab stays inside of one.
    : QWidget(&content, Qt::SubWindow), frame_(this) {
    frame_.setFrameShape(QFrame::NoFrame);
    frame_.setWidgetResizable(true);
    frame_.setFocusPolicy(Qt::NoFocus);
    frame_.viewport()->setAutoFillBackground(false);
    setAcceptDrops(true);
    content.installEventFilter(this);
}

void SheetHost::setSheet(QWidget* sheet) {
    frame_.setWidget(sheet);
    sheet->setAutoFillBackground(false);
    setGeometry(parentWidget()->rect());
    layOut();
    show();
    raise();
}

void SheetHost::dismiss() {
    hide();
    parentWidget()->removeEventFilter(this);
    parentWidget()->setFocus();
    deleteLater();
}

bool SheetHost::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

void SheetHost::layOut() {
    if (frame_.widget() == nullptr) return;
    const QSize room = size() - QSize(2 * leastMargin, 2 * leastMargin);
    const QSize sheet = frame_.widget()->sizeHint().boundedTo(room);
    frame_.setGeometry(
        QRect(QPoint((width() - sheet.width()) / 2, (height() - sheet.height()) / 2), sheet));
}

// Focus is set here because a window that is not yet shown loses it.
void SheetHost::showEvent(QShowEvent*) {
    if (QWidget* const sheet = frame_.widget()) sheet->setFocus();
}

void SheetHost::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(rect(), withOpacity(Qt::black, opacity::sheetDimming));
    DropShadow::paint(painter, frame_.geometry(), event->rect());
    painter.setRenderHint(QPainter::Antialiasing);
    paintRoundedRect(painter, frame_.geometry(), cornerRadius,
                     semanticColor(SemanticColor::windowBackground),
                     {semanticColor(SemanticColor::separator), 1});
}

void SheetHost::resizeEvent(QResizeEvent*) { layOut(); }

void SheetHost::mousePressEvent(QMouseEvent* event) { event->accept(); }

void SheetHost::mouseReleaseEvent(QMouseEvent* event) { event->accept(); }

void SheetHost::wheelEvent(QWheelEvent* event) { event->accept(); }

// Refuses the drag. If it were ignored, the widget below would receive it.
void SheetHost::dragEnterEvent(QDragEnterEvent* event) { event->ignore(); }

}  // namespace marlevo
