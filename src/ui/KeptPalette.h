#pragma once

#include <QPalette>

#include <functional>

class QWidget;

namespace marlevo {

/// Gives a widget a palette of our own, and makes it anew when the desktop's palette has changed.
void keepPalette(QWidget& widget, std::function<QPalette()> make);

}  // namespace marlevo
