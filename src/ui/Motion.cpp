#include "ui/Motion.h"

#include <QApplication>
#include <QStyle>

namespace marlevo {

bool isMotionWanted() {
    return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
}

}  // namespace marlevo
