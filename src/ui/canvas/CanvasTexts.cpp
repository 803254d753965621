#include "ui/canvas/CanvasTexts.h"

#include <QCoreApplication>

namespace marlevo {

QString localizedStrokeCount(qint64 count) {
    const QString format = count == 1
                               ? QCoreApplication::translate("CanvasTexts", "single_stroke")
                               : QCoreApplication::translate("CanvasTexts", "multiple_strokes");
    return format.contains(QLatin1String("%1")) ? format.arg(count) : format;
}

QString wholePixels(double side) {
    const bool fits = side > -0x1p63 && side < 0x1p63;
    return fits ? QString::number(static_cast<qint64>(side)) : QStringLiteral("–");
}

}  // namespace marlevo
