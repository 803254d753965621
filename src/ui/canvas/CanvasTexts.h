#pragma once

#include <QString>

namespace marlevo {

/// The catalogue's text for a number of strokes: its entry "single_stroke" for exactly 1, else
/// "multiple_strokes", with the count for "%1". Without an entry the key itself.
QString localizedStrokeCount(qint64 count);

/// A side of the canvas, truncated to whole pixels. NaN and sides beyond 64 bits give "–".
QString wholePixels(double side);

}  // namespace marlevo
