#pragma once

#include "graphics/FlattenedPath.h"

namespace marlevo {

/// Replaces `out` by the outline of `centerLine`, in device coordinates, drawn with a round pen
/// `lineWidth` wide in a frame of these scales: where they differ the pen is an ellipse. The
/// outline is to be filled with the non-zero rule. A sub-path of length zero gives the shape of the
/// pen.
///
/// Curves of the outline stray at most flatteningTolerance, and points of the line closer together
/// than a fraction of that are joined; where the outline is wider than some 100,000 pixels the
/// error grows with it. Coordinates of `out` may lie beyond FlattenedPath::maxCoordinate. A width
/// or scale that is not finite, or is 0, or a negative width, gives an empty outline.
///
/// How: each segment has a cell on each side of it, half the width high. On the outer side of a
/// turn the cells of two segments end at their normals with a circle's sector between them; on the
/// inner side they meet on the bisector, and a cell whose bisectors meet before half the width ends
/// in their crossing. Where a segment is so short that a bisector would cut off more than it makes
/// up for, the cells end at their normals there too and overlap; where a turn is so slight that the
/// tolerance does not tell a corner from an arc, they meet on the bisector on both sides. Every
/// point that the pen reaches is in the cell of the segment nearest to it, or in a sector or cap,
/// and no cell turns backwards, so winding numbers inside are never 0 however tight the line turns.
/// Borders between cells cancel; only the outer border of their sum is put out.
void strokeOutline(const FlattenedPath& centerLine, double lineWidth, double scaleX, double scaleY,
                   FlattenedPath& out);

/// Points of the line at most this far apart, one after the other, are drawn as one, in pixels of
/// a pen as wide on the device.
double mergeDistance(double deviceWidth);

}  // namespace marlevo
