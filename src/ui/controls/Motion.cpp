#include "ui/controls/Motion.h"

#include "platform/qt/DesktopSettings.h"

#include <QApplication>
#include <QStyle>

namespace marlevo {

bool isMotionWanted() {
    const int duration = QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration);
    return duration > 0 && DesktopSettings::instance().isMotionWanted();
}

}  // namespace marlevo
