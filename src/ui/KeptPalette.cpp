#include "ui/KeptPalette.h"

#include "ui/DesktopLook.h"

#include <QWidget>

#include <utility>

namespace marlevo {

void keepPalette(QWidget& widget, std::function<QPalette()> make) {
    const auto apply = [&widget, make = std::move(make)] { widget.setPalette(make()); };
    apply();
    QObject::connect(&DesktopLook::instance(), &DesktopLook::paletteChanged, &widget, apply);
}

}  // namespace marlevo
