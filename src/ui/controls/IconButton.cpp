#include "ui/controls/IconButton.h"

#include "ui/controls/IconEngine.h"

namespace marlevo {

IconButton::IconButton(Icon icon, const QString& name, Look look, QWidget* parent)
    : ToolButton(look, name, parent) {
    setIcon(makeIcon(icon));
    setToolTip(name);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

}  // namespace marlevo
