#include "ui/sidebar/FormsSection.h"

#include "model/DrawingDocument.h"
#include "tools/ToolChoice.h"
#include "ui/controls/ModeButtonRow.h"
#include "ui/controls/ToolNames.h"
#include "ui/sidebar/SectionHeader.h"

#include <QVBoxLayout>

namespace marlevo {

FormsSection::FormsSection(DrawingDocument& document, QWidget* parent)
    : QWidget(parent), document_(document) {
    using ShapeType = Stroke::ShapeType;
    const ToolNames names = toolNames();
    makeSectionColumn(*this, tr("Forms"))
        ->addWidget(
            new ModeButtonRow({makeButton(Icon::lineDiagonal, names.line, ShapeType::line),
                               makeButton(Icon::rectangle, names.rectangle, ShapeType::rect),
                               makeButton(Icon::circle, names.ellipse, ShapeType::ellipse)}));
    const auto buttons = findChildren<QAbstractButton*>();
    focus_.setMembers({buttons.begin(), buttons.end()});
}

ModeButton* FormsSection::makeButton(Icon icon, const QString& label, Stroke::ShapeType type) {
    auto* button = new ModeButton(ModeButton::Kind::secondary, icon, label);
    followers_.emplace_back(document_.changeRegistry(), [this, button, type] {
        button->setActive(isShapeChosen(document_, type));
    });
    connect(button, &ModeButton::chosen, this, [this, type] { chooseShape(document_, type); });
    return button;
}

}  // namespace marlevo
