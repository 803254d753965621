#include "ui/sidebar/DrawingSection.h"

#include "model/DrawingDocument.h"
#include "tools/ToolChoice.h"
#include "ui/controls/ModeButtonRow.h"
#include "ui/controls/ToolNames.h"
#include "ui/sidebar/SectionHeader.h"

#include <QVBoxLayout>

#include <utility>

namespace marlevo {

namespace {

constexpr int rowSpacing = 6;
constexpr ContinuousSlider::Range sizeRange{1, 20, 1};
constexpr ContinuousSlider::Range opacityRange{0.1, 1.0, 0.05};

}  // namespace

DrawingSection::DrawingSection(DrawingDocument& document, QWidget* parent)
    : QWidget(parent), document_(document), colors_(document),
      size_(tr("Size"), sizeRange, [](double width) { return tr("%1px").arg(qint64(width)); }),
      opacity_(tr("Opacity"), opacityRange,
               [](double opacity) { return tr("%1%").arg(qint64(opacity * 100)); }) {
    followers_.emplace_back(document.changeRegistry(),
                            [this] { size_.showValue(document_.lineWidth); });
    followers_.emplace_back(document.changeRegistry(),
                            [this] { opacity_.showValue(document_.brushOpacity); });
    connect(&size_, &LabeledSlider::moved, this,
            [this](double width) { document_.lineWidth = width; });
    connect(&opacity_, &LabeledSlider::moved, this,
            [this](double opacity) { document_.brushOpacity = opacity; });

    QVBoxLayout* const column = makeSectionColumn(*this, tr("Drawing"));
    column->addWidget(&colors_);
    column->addWidget(&size_);
    column->addWidget(&opacity_);
    column->addWidget(makeTools());
}

QWidget* DrawingSection::makeTools() {
    using enum ModeButton::Kind;
    const auto& d = document_;
    const ToolNames names = toolNames();
    auto* tools = new QWidget(this);
    auto* rows = new QVBoxLayout(tools);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(rowSpacing);
    rows->addWidget(new ModeButtonRow(
        {makeButton(
             primary, Icon::pencil, names.draw, [&d] { return d.isDrawingMode(); }, chooseBrush),
         makeButton(
             secondary, Icon::arrowPointer, names.select, [&d] { return d.isSelectTool.get(); },
             chooseSelect),
         makeButton(
             primary, Icon::eraser, names.eraser, [&d] { return d.isEraser.get(); },
             chooseEraser)}));
    rows->addWidget(
        new ModeButtonRow({makeButton(
                               secondary, Icon::paintBucket, names.fill,
                               [&d] { return d.isFillTool.get(); }, chooseFill),
                           makeButton(
                               secondary, Icon::eyedropper, names.eyeDropper,
                               [&d] { return d.isEyeDropper.get(); }, chooseEyeDropper)}));
    const auto buttons = tools->findChildren<QAbstractButton*>();
    toolFocus_.setMembers({buttons.begin(), buttons.end()});
    return tools;
}

ModeButton* DrawingSection::makeButton(ModeButton::Kind kind, Icon icon, const QString& label,
                                       std::function<bool()> isChosen,
                                       void (*choose)(DrawingDocument&)) {
    auto* button = new ModeButton(kind, icon, label);
    followers_.emplace_back(document_.changeRegistry(), [button, isChosen = std::move(isChosen)] {
        button->setActive(isChosen());
    });
    connect(button, &ModeButton::chosen, this, [this, choose] { choose(document_); });
    return button;
}

}  // namespace marlevo
