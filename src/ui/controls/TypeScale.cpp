#include "ui/controls/TypeScale.h"

#include "ui/controls/AppearanceNotifier.h"

#include <QApplication>
#include <QFontInfo>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace marlevo {

namespace {

double sizeInProportion(TypeStyle style) {
    switch (style) {
    case TypeStyle::caption2:
        return 0.80;
    case TypeStyle::caption:
        return 0.86;
    case TypeStyle::callout:
        return 0.93;
    case TypeStyle::body:
        break;
    case TypeStyle::title3:
        return 1.2;
    case TypeStyle::largeTitle:
        return 2.0;
    }
    return 1;
}

}  // namespace

QFont typeFont(TypeStyle style, QFont::Weight weight) {
    QFont font = QApplication::font();
    const double proportion = sizeInProportion(style);
    if (font.pixelSize() > 0)
        font.setPixelSize(std::max(1, int(std::lround(font.pixelSize() * proportion))));
    else
        font.setPointSizeF(font.pointSizeF() * proportion);
    font.setWeight(weight);
    return font;
}

int iconSide(TypeStyle style) {
    // Larger than the font, because letters do not fill its height.
    return int(std::lround(QFontInfo(typeFont(style)).pixelSize() * 1.2));
}

int grownWithText(int points) {
    constexpr int largestUsualFont = 16;
    const int font = QFontInfo(QApplication::font()).pixelSize();
    return points * std::max(font, largestUsualFont) / largestUsualFont;
}

void setTypeStyle(QWidget& widget, TypeStyle style, QFont::Weight weight) {
    const auto apply = [&widget, style, weight] { widget.setFont(typeFont(style, weight)); };
    apply();
    QObject::connect(&AppearanceNotifier::instance(), &AppearanceNotifier::fontChanged, &widget,
                     apply);
}

}  // namespace marlevo
