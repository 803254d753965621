#include "ui/sidebar/QuickColors.h"

#include "ui/controls/Colors.h"
#include "ui/controls/SemanticColors.h"
#include "ui/sidebar/ColorRow.h"

namespace marlevo {

std::vector<QuickColor> quickColors() {
    const auto fixed = [](const Color& color) { return [color] { return color; }; };
    const auto adaptive = [](SemanticColor color) {
        return [color] { return toColor(semanticColor(color)); };
    };
    return {
        {ColorRow::tr("Color black"), fixed(black)},
        {ColorRow::tr("Color white"), fixed(white)},
        {ColorRow::tr("Color red"), adaptive(SemanticColor::systemRed)},
        {ColorRow::tr("Color orange"), adaptive(SemanticColor::systemOrange)},
        {ColorRow::tr("Color yellow"), adaptive(SemanticColor::systemYellow)},
        {ColorRow::tr("Color green"), adaptive(SemanticColor::systemGreen)},
        {ColorRow::tr("Color blue"), adaptive(SemanticColor::systemBlue)},
        {ColorRow::tr("Color purple"), adaptive(SemanticColor::systemPurple)},
    };
}

}  // namespace marlevo
