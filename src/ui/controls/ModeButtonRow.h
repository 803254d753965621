#pragma once

#include "ui/controls/ModeButton.h"

#include <vector>

namespace marlevo {

/// Tool buttons that divide the width of the row (DistributeWidth.h) or, in a narrow row, of each
/// of its lines (FlowLayout.h).
class ModeButtonRow final : public QWidget {
    Q_OBJECT

public:
    /// Takes ownership of the buttons.
    explicit ModeButtonRow(const std::vector<ModeButton*>& buttons, QWidget* parent = nullptr);
};

}  // namespace marlevo
