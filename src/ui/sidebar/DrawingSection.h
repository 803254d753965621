#pragma once

#include "model/Follower.h"
#include "ui/controls/FocusGroup.h"
#include "ui/controls/LabeledSlider.h"
#include "ui/controls/ModeButton.h"
#include "ui/sidebar/ColorRow.h"

#include <functional>
#include <list>

namespace marlevo {

class DrawingDocument;

/// The settings of new strokes and the tools.
class DrawingSection final : public QWidget {
    Q_OBJECT

public:
    /// The document must outlive the section.
    explicit DrawingSection(DrawingDocument& document, QWidget* parent = nullptr);

private:
    QWidget* makeTools();
    ModeButton* makeButton(ModeButton::Kind kind, Icon icon, const QString& label,
                           std::function<bool()> isChosen, void (*choose)(DrawingDocument&));

    DrawingDocument& document_;
    ColorRow colors_;
    LabeledSlider size_;
    LabeledSlider opacity_;
    FocusGroup toolFocus_;
    std::list<Follower> followers_;
};

}  // namespace marlevo
