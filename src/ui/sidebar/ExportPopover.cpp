#include "ui/sidebar/ExportPopover.h"

#include "ui/controls/ControlPainting.h"
#include "ui/controls/Icons.h"
#include "ui/controls/TextLabel.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace marlevo {

namespace {

constexpr int leastWidth = 140;
constexpr int sidePadding = 12;
constexpr int headingTop = 8;
constexpr int headingBottom = 4;
constexpr int rowPadding = 6;
constexpr int bottomPadding = 4;  // keeps the last row clear of the round corners

}  // namespace

ExportPopover::ExportPopover(QWidget& anchor) : Popover(anchor) {
    const QString title = tr("Export as");
    setAccessibleName(title);
    auto* heading =
        new TextLabel(title, {TypeStyle::caption, QFont::DemiBold, SemanticColor::secondary});
    heading->setContentsMargins(sidePadding, headingTop, sidePadding, headingBottom);
    heading->setMinimumWidth(std::max(leastWidth, heading->sizeHint().width()));

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, bottomPadding);
    column->setSpacing(0);
    column->addWidget(heading);
    for (const ExportFormat format : allExportFormats) {
        auto* row = new ExportFormatButton(format);
        column->addWidget(row);
        connect(row, &ExportFormatButton::clicked, this, [this, format] {
            dismiss();
            Q_EMIT formatChosen(format);
        });
    }
}

ExportFormatButton::ExportFormatButton(ExportFormat format, QWidget* parent)
    : PaintedButton({}, parent) {
    const auto title = rawValue(format);
    setText(QString::fromLatin1(title.data(), qsizetype(title.size())));
    setAccessibleName(text());
    setTypeStyle(*this, TypeStyle::body);
}

QSize ExportFormatButton::sizeHint() const {
    const int icon = iconSide(TypeStyle::caption);
    return {2 * sidePadding + fontMetrics().horizontalAdvance(text()) + sidePadding + icon,
            2 * rowPadding + std::max(fontMetrics().height(), icon)};
}

void ExportFormatButton::paintContents(QPainter& painter) {
    if (isDown() || isInviting() || hasFocus()) {
        const QRectF inside = QRectF(rect()).adjusted(4, 0, -4, 0);
        paintRoundedRect(painter, inside, 5,
                         withOpacity(semanticColor(SemanticColor::blue), isDown() ? 0.3 : 0.15));
    }
    const QRect content = rect().adjusted(sidePadding, 0, -sidePadding, 0);
    painter.setPen(semanticColor(SemanticColor::primary));
    painter.drawText(
        content, int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter),
        text());
    const int side = iconSide(TypeStyle::caption);
    const QRect icon(content.right() + 1 - side, (height() - side) / 2, side, side);
    paintIcon(painter, Icon::documentArrowDown,
              QStyle::visualRect(layoutDirection(), content, icon),
              semanticColor(SemanticColor::secondary));
}

void ExportFormatButton::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return click();
    case Qt::Key_Up:
    case Qt::Key_Down:
        return event->ignore();  // the popover goes to the next line
    default:
        PaintedButton::keyPressEvent(event);
    }
}

}  // namespace marlevo
