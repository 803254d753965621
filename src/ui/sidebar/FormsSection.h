#pragma once

#include "model/Follower.h"
#include "model/Stroke.h"
#include "ui/controls/FocusGroup.h"
#include "ui/controls/ModeButton.h"

#include <list>

namespace marlevo {

class DrawingDocument;

/// The shapes to draw.
class FormsSection final : public QWidget {
    Q_OBJECT

public:
    /// The document must outlive the section.
    explicit FormsSection(DrawingDocument& document, QWidget* parent = nullptr);

private:
    ModeButton* makeButton(Icon icon, const QString& label, Stroke::ShapeType type);

    DrawingDocument& document_;
    FocusGroup focus_;
    std::list<Follower> followers_;
};

}  // namespace marlevo
