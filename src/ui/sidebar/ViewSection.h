#pragma once

#include "model/Follower.h"
#include "ui/controls/CheckBox.h"
#include "ui/controls/ColorWell.h"
#include "ui/controls/TextLabel.h"

namespace marlevo {

class DrawingDocument;

/// The grid and the background of the canvas.
class ViewSection final : public QWidget {
    Q_OBJECT

public:
    /// The document must outlive the section.
    explicit ViewSection(DrawingDocument& document, QWidget* parent = nullptr);

private:
    DrawingDocument& document_;
    CheckBox grid_;
    ColorWell background_;
    TextLabel backgroundLabel_;
    CheckBox transparent_;
    Follower gridFollower_;
    Follower backgroundFollower_;
    Follower transparentFollower_;
};

}  // namespace marlevo
