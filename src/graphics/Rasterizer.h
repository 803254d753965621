#pragma once

#include "graphics/CoverageSink.h"
#include "graphics/DeviceFrame.h"
#include "graphics/FlattenedPath.h"
#include "graphics/IntRect.h"
#include "graphics/Path.h"

namespace marlevo {

/// Above this width, in device pixels, a stroke is drawn by area, which is faster there: measured,
/// curvy strokes break even at 36 and straight ones at 18.
inline constexpr double maxWidthByDistance = 24;

/// The pen of a stroke in device pixels. Where the scales of a frame differ it is an ellipse.
struct DevicePen {
    DevicePen(double lineWidth, const DeviceFrame& frame);

    bool isVisible() const { return width > 0 && height > 0; }
    double reach() const;

    /// True if strokes of this pen are drawn by distance, else by area. Never depends on the part
    /// of the plane that is painted, or its parts would not fit together.
    bool drawsByDistance() const { return width == height && width <= maxWidthByDistance; }

    double width;
    double height;
};

/// Blends the inside of the path by the non-zero rule; open contours are closed.
void rasterizeFill(const Path& path, const DeviceFrame& frame, const BlendSink& sink);

/// Passes the stroke of the path with a round pen to the sink, which is a BlendSink unless the pen
/// draws by distance. An invisible pen draws nothing.
void rasterizeStroke(const Path& path, double lineWidth, const DeviceFrame& frame,
                     const CoverageSink& sink);

/// Passes the stroke of `line` with a round pen `deviceWidth` pixels wide to the sink.
///
/// A stroke with round caps and joins is the set of points within half a width of its line. The
/// coverage of a pixel follows from the distance of its centre to the nearest segment. The minimum
/// does not depend on the order of segments: self-crossings are not darker, and a stroke drawn
/// piece by piece into one mask has the bytes of one drawn at once. Each pixel gets the same bytes
/// whatever part of the plane is painted.
///
/// The cost grows with length · width: for pens of up to `maxWidthByDistance`. See RoundPen for
/// pens thinner than a pixel. A width that is not positive draws nothing.
void strokeByDistance(const FlattenedPath& line, double deviceWidth, const CoverageSink& sink);

/// Blends the inside of `outline` by the non-zero rule; contours count as closed.
///
/// The coverage of a pixel is the exact area of the outline in it, with corners rounded to 1/256
/// pixel: see AccumulationBuffer. The winding number averaged over the pixel is limited to −1 … 1,
/// which is the non-zero rule except in a pixel where edges of one shape meet: there, two partial
/// coverages that overlap are added, and opposite ones cancel.
///
/// Each pixel gets the same bytes whatever part of the plane is painted. Coordinates may have any
/// value: segments beyond Edge::limit follow that border, and a contour with a coordinate that is
/// not finite is left out.
void fillOutline(const FlattenedPath& outline, const BlendSink& sink);

}  // namespace marlevo
