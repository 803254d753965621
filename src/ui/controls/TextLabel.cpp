#include "ui/controls/TextLabel.h"

#include "ui/controls/ControlPainting.h"
#include "ui/controls/ElidedToolTip.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace marlevo {

TextLabel::TextLabel(const QString& text, Look look, QWidget* parent)
    : QLabel(text, parent), look_(look) {
    setTextFormat(Qt::PlainText);
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

bool TextLabel::isElided() const { return width() < sizeHint().width(); }

void TextLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!isEnabled()) painter.setOpacity(disabledOpacity);
    painter.setPen(semanticColor(look_.color));
    const QString shown = shownText();
    if (look_.digits == Digits::monospaced && !isElided()) return paintCharacters(painter, shown);
    const QString fitting =
        isElided() ? fontMetrics().elidedText(shown, Qt::ElideRight, contentsRect().width())
                   : shown;
    const auto alignment = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
    painter.drawText(contentsRect(), int(alignment | Qt::AlignVCenter | Qt::TextSingleLine),
                     fitting);
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

SectionHeader::SectionHeader(const QString& title, QWidget* parent)
    : TextLabel(title, textlook::captionTitle, parent) {}

}  // namespace marlevo
