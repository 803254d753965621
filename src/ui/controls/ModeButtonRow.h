#pragma once

#include "ui/controls/ModeButton.h"

#include <vector>

namespace marlevo {

/// Tool buttons side by side, which divide the width of the row (DistributeWidth.h).
class ModeButtonRow final : public QWidget {
    Q_OBJECT

public:
    /// Takes ownership of the buttons.
    explicit ModeButtonRow(std::vector<ModeButton*> buttons, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    QSize total(QSize (ModeButton::*hint)() const) const;
    void layOut();

    std::vector<ModeButton*> buttons_;
};

}  // namespace marlevo
