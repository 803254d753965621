#include "ui/ProminentButton.h"

#include "ui/KeptPalette.h"
#include "ui/SemanticColors.h"

#include <QPalette>
#include <QPushButton>

namespace marlevo {

namespace {

QPalette prominentPalette() {
    QPalette palette = semanticPalette(SemanticColor::windowBackground);
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Button, semanticColor(SemanticColor::blue));
        palette.setColor(group, QPalette::ButtonText, Qt::white);
    }
    return palette;
}

}  // namespace

void makeProminent(QPushButton& button) { keepPalette(button, prominentPalette); }

}  // namespace marlevo
