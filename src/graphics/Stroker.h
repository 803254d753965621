#pragma once

#include "graphics/FlattenedPath.h"

namespace marlevo {

/// Replaces `out` by the outline of `centerLine`, in device coordinates, drawn with a round pen
/// `lineWidth` wide in a frame of these scales: where they differ the pen is an ellipse. The
/// outline is filled by the non-zero rule. A contour of length zero gives the shape of the pen.
///
/// The outline is at most flatteningTolerance away from the true one; above a width of some 100,000
/// pixels the error grows with the width. Consecutive points closer than mergeDistance() are
/// merged. Coordinates of `out` may exceed FlattenedPath::maxCoordinate. A width or scale that is
/// not finite or 0, or a negative width, gives an empty outline.
///
/// Method: each segment has a cell on each side, half the width high. On the outer side of a turn
/// the cells of both segments end at their normals, with a sector of a circle between them. On the
/// inner side they end on the bisector; a cell whose two bisectors cross below half the width ends
/// at the crossing. Two exceptions:
/// - The bisector is followed inwards by at most the length of the neighbouring segment. Above that
///   height the end is parallel to the normal, and cells overlap.
/// - If a turn is so slight that corner and arc differ by less than the tolerance, the cells end on
///   the bisector on both sides.
/// Every point within reach of the pen is in the cell of its nearest segment, in a sector or in a
/// cap. No cell runs backwards, so winding numbers inside are never 0, however tight the line
/// turns. Borders between cells cancel; `out` gets the outer border of their sum only.
void strokeOutline(const FlattenedPath& centerLine, double lineWidth, double scaleX, double scaleY,
                   FlattenedPath& out);

/// The distance, in device pixels, up to which consecutive points of the line are merged.
double mergeDistance(double deviceWidth);

}  // namespace marlevo
