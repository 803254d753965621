#pragma once

#include "graphics/Point.h"
#include "graphics/Size.h"

namespace marlevo {

enum class Click : bool { no, yes };

/// Distinguishes a click from a drag. Positions in one frame of view points, so that the tolerance
/// does not depend on the zoom.
class ClickDetector {
public:
    /// A press and a release make a click when no position between them is farther than this from
    /// the press, in view points.
    static constexpr double tolerance = 4;

    void press(Point at);
    void move(Point to);
    /// Ends the press at its last position.
    Click release(Point at);

    /// The distance from the last press to the position.
    Size sincePress(Point position) const;

private:
    Point start_;
    Click click_ = Click::no;
};

}  // namespace marlevo
