#include "ui/TypeScale.h"

#include <QApplication>
#include <QEvent>
#include <QFontInfo>
#include <QWidget>

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

/// Lives with a widget and gives it its font anew when the desktop's changes.
class FontKeeper final : public QObject {
public:
    FontKeeper(QWidget& widget, TypeStyle style, QFont::Weight weight)
        : QObject(&widget), widget_(widget), style_(style), weight_(weight) {
        widget.installEventFilter(this);
        apply();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ApplicationFontChange) apply();
        return QObject::eventFilter(watched, event);
    }

private:
    void apply() { widget_.setFont(typeFont(style_, weight_)); }

    QWidget& widget_;
    TypeStyle style_;
    QFont::Weight weight_;
};

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
    // A sixth more than the text: as high as its tallest letters with their overshoot and air.
    return int(std::lround(QFontInfo(typeFont(style)).pixelSize() * 1.2));
}

void setTypeStyle(QWidget& widget, TypeStyle style, QFont::Weight weight) {
    new FontKeeper(widget, style, weight);
}

}  // namespace marlevo
