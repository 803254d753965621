#include "ui/QuickColors.h"

#include "ui/Colors.h"
#include "ui/SemanticColors.h"

#include <QCoreApplication>

namespace marlevo {

std::vector<QuickColor> quickColors() {
    const auto tr = [](const char* text) {
        return QCoreApplication::translate("QuickColors", text);
    };
    const auto fixed = [](const Color& color) { return [color] { return color; }; };
    const auto adaptive = [](SemanticColor color) {
        return [color] { return toColor(semanticColor(color)); };
    };
    return {
        {tr(QT_TRANSLATE_NOOP("QuickColors", "Color black")), fixed(black)},
        {tr(QT_TRANSLATE_NOOP("QuickColors", "Color white")), fixed(white)},
        {tr(QT_TRANSLATE_NOOP("QuickColors", "Color red")), adaptive(SemanticColor::systemRed)},
        {tr(QT_TRANSLATE_NOOP("QuickColors", "Color orange")),
         adaptive(SemanticColor::systemOrange)},
        {tr(QT_TRANSLATE_NOOP("QuickColors", "Color yellow")),
         adaptive(SemanticColor::systemYellow)},
        {tr(QT_TRANSLATE_NOOP("QuickColors", "Color green")), adaptive(SemanticColor::systemGreen)},
        {tr(QT_TRANSLATE_NOOP("QuickColors", "Color blue")), adaptive(SemanticColor::systemBlue)},
        {tr(QT_TRANSLATE_NOOP("QuickColors", "Color purple")),
         adaptive(SemanticColor::systemPurple)},
    };
}

}  // namespace marlevo
