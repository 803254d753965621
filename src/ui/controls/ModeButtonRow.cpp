#include "ui/controls/ModeButtonRow.h"

#include "ui/controls/FlowLayout.h"

namespace marlevo {

namespace {

constexpr int spacing = 6;

}  // namespace

ModeButtonRow::ModeButtonRow(const std::vector<ModeButton*>& buttons, QWidget* parent)
    : QWidget(parent) {
    auto* row = new FlowLayout(FlowLayout::Fill::share, spacing, this);
    for (ModeButton* const button : buttons)
        row->addWidget(button);
}

}  // namespace marlevo
