#pragma once

#include <QString>

namespace marlevo {

/// The names of the tools and shapes in the user's language, for the buttons of the sidebar and the
/// description of the canvas. They may have soft hyphens (WrapText.h).
struct ToolNames {
    QString draw;
    QString select;
    QString eraser;
    QString fill;
    QString eyeDropper;
    QString line;
    QString rectangle;
    QString ellipse;
};

ToolNames toolNames();

}  // namespace marlevo
