#include "ui/controls/WrapText.h"

#include <QFontMetrics>
#include <QStringList>
#include <QTextLayout>

#include <algorithm>

namespace marlevo {

namespace {

/// Keeps the soft hyphens of the words that are too wide for a line.
QString withUsefulHyphens(const QString& text, const QFontMetrics& metrics, int room) {
    QStringList words = text.split(u' ');
    for (QString& word : words) {
        const QString whole = withoutSoftHyphens(word);
        if (metrics.horizontalAdvance(whole) <= room) word = whole;
    }
    return words.join(u' ');
}

}  // namespace

QString wrapText(const QString& text, const QFont& font, int room) {
    const QFontMetrics metrics(font);
    // Controls measure themselves in whole points, where the layout below counts fractions.
    const QString inOneLine = withoutSoftHyphens(text);
    if (metrics.horizontalAdvance(inOneLine) <= room) return inOneLine;

    const QString hyphenated = withUsefulHyphens(text, metrics, room);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextLayout layout(hyphenated, font);
    layout.setTextOption(option);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(std::max(room, 1));
        QString part = hyphenated.mid(line.textStart(), line.textLength()).trimmed();
        if (part.endsWith(QChar::SoftHyphen)) part.back() = u'-';
        lines << withoutSoftHyphens(part);
    }
    layout.endLayout();
    return lines.join(u'\n');
}

QString withoutSoftHyphens(QString text) { return text.remove(QChar::SoftHyphen); }

}  // namespace marlevo
