#pragma once

#include <QCheckBox>

namespace marlevo {

/// A check box that the style paints as a switch: the label leads, and the knob is at the trailing
/// side while the switch is on.
class Switch final : public QCheckBox {
    Q_OBJECT

public:
    using QCheckBox::QCheckBox;
};

}  // namespace marlevo
