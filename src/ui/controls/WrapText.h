#pragma once

#include <QFont>
#include <QString>

namespace marlevo {

/// The text with line breaks, so that no line is wider than `room` view points. Lines end between
/// words. A word that is too wide ends at a soft hyphen (U+00AD), which becomes a hyphen there, or,
/// without one that fits, between two letters. The other soft hyphens are taken out.
QString wrapText(const QString& text, const QFont& font, int room);

/// The text without its soft hyphens, as a name.
QString withoutSoftHyphens(QString text);

}  // namespace marlevo
