#include "ui/controls/TextLabel.h"

#include "ui/controls/ControlPainting.h"
#include "ui/controls/ElidedToolTip.h"
#include "ui/controls/WrapText.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace marlevo {

TextLabel::TextLabel(const QString& text, Look look, QWidget* parent)
    : QLabel(text, parent), look_(look) {
    setTextFormat(Qt::PlainText);
    if (text.contains(QChar::SoftHyphen)) setAccessibleName(withoutSoftHyphens(text));
    setTypeStyle(*this, look.style, look.weight);
    new ElidedToolTip(this, [this] { return isElided() ? this->text() : QString(); });
}

int TextLabel::digitWidth() const {
    int widest = 0;
    for (char digit = '0'; digit <= '9'; ++digit)
        widest = std::max(widest, fontMetrics().horizontalAdvance(QLatin1Char(digit)));
    return widest;
}

int TextLabel::widthOf(const QString& shown) const {
    if (look_.digits == Digits::proportional) return fontMetrics().horizontalAdvance(shown) + 1;
    int width = 0;
    for (const QChar character : shown)
        width += character.isDigit() ? digitWidth() : fontMetrics().horizontalAdvance(character);
    return width + 1;
}

QSize TextLabel::sizeHint() const {
    return QSize(widthOf(shownText()), fontMetrics().height()).grownBy(contentsMargins());
}

QSize TextLabel::minimumSizeHint() const {
    const int fewLetters = fontMetrics().horizontalAdvance(QStringLiteral("nn…"));
    const QMargins margins = contentsMargins();
    return {std::min(sizeHint().width(), fewLetters + margins.left() + margins.right()),
            sizeHint().height()};
}

int TextLabel::heightForWidth(int width) const {
    if (!wordWrap()) return -1;
    const QMargins margins = contentsMargins();
    return fontMetrics().size(0, wrapped(width)).height() + margins.top() + margins.bottom();
}

/// In lines for a label of this width.
QString TextLabel::wrapped(int width) const {
    const QMargins margins = contentsMargins();
    return wrapText(shownText(), font(), width - margins.left() - margins.right());
}

bool TextLabel::isElided() const { return !wordWrap() && width() < sizeHint().width(); }

void TextLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!isEnabled()) painter.setOpacity(opacity::disabled);
    painter.setPen(semanticColor(look_.color));
    const QString shown = shownText();
    if (look_.digits == Digits::monospaced && width() >= sizeHint().width())
        return paintCharacters(painter, shown);
    const QString fitting =
        wordWrap()   ? wrapped(width())
        : isElided() ? fontMetrics().elidedText(shown, Qt::ElideRight, contentsRect().width())
                     : shown;
    const auto alignment = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
    const int lines = wordWrap() ? 0 : Qt::TextSingleLine;
    painter.drawText(contentsRect(), int(alignment | Qt::AlignVCenter) | lines, fitting);
}

void TextLabel::paintCharacters(QPainter& painter, const QString& shown) const {
    const QRect room = contentsRect();
    int left = isRightToLeft() ? room.right() + 1 - widthOf(shown) : room.left();
    for (const QChar character : shown) {
        const int cell =
            character.isDigit() ? digitWidth() : fontMetrics().horizontalAdvance(character);
        painter.drawText(QRect(left, room.top(), cell + 1, room.height()), Qt::AlignCenter,
                         character);
        left += cell;
    }
}

}  // namespace marlevo
