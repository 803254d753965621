#include "ui/controls/ToolNames.h"

#include <QCoreApplication>

namespace marlevo {

ToolNames toolNames() {
    return {
        .draw = QCoreApplication::translate("ToolNames", "Draw"),
        .select = QCoreApplication::translate("ToolNames", "Select"),
        .eraser = QCoreApplication::translate("ToolNames", "Eraser"),
        .fill = QCoreApplication::translate("ToolNames", "Fill"),
        .eyeDropper = QCoreApplication::translate("ToolNames", "Drop"),
        .line = QCoreApplication::translate("ToolNames", "Line"),
        .rectangle = QCoreApplication::translate("ToolNames", "Rectangle"),
        .ellipse = QCoreApplication::translate("ToolNames", "Ellipse"),
    };
}

}  // namespace marlevo
