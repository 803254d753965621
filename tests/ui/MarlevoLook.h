#pragma once

#include "ui/controls/MarlevoStyle.h"

#include <QApplication>

namespace marlevo {

/// Gives the application the program's style, which paints the controls. For a fixture's first
/// member.
struct MarlevoLook {
    MarlevoLook() { QApplication::setStyle(new MarlevoStyle); }
};

}  // namespace marlevo
