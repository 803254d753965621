#include "ui/sidebar/ExportPopover.h"

#include "ui/controls/IconEngine.h"
#include "ui/controls/TextLabel.h"

#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace marlevo {

namespace {

constexpr int leastWidth = 140;
constexpr int sidePadding = 12;
constexpr int headingTop = 8;
constexpr int headingBottom = 4;
constexpr int bottomPadding = 4;  // between the last row and the round corners

QString titleOf(ExportFormat format) {
    const auto title = rawValue(format);
    return QString::fromLatin1(title.data(), qsizetype(title.size()));
}

}  // namespace

ExportPopover::ExportPopover(QWidget& anchor) : Popover(anchor) {
    const QString title = tr("Export as");
    setAccessibleName(title);
    auto* heading = new TextLabel(title, textlook::captionTitle);
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
    : ToolButton(Look::menuRow, titleOf(format), parent) {
    setText(titleOf(format));
    setIcon(makeIcon(Icon::documentArrowDown, SemanticColor::secondary));
    setTypeStyle(*this, TypeStyle::body);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ExportFormatButton::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return click();
    case Qt::Key_Up:
    case Qt::Key_Down:
        return event->ignore();  // the popover moves the focus
    default:
        ToolButton::keyPressEvent(event);
    }
}

}  // namespace marlevo
