#pragma once

#include "graphics/Blend.h"
#include "graphics/FlattenedPath.h"
#include "graphics/HeldCoverage.h"
#include "graphics/PixelBuffer.h"

#include <span>

namespace marlevo {

/// Draws the polyline with a round pen `deviceWidth` pixels wide.
///
/// A stroke with round caps and joins is the set of points within half a width of its polyline. The
/// coverage of a pixel follows from the distance of its centre to the nearest segment; the minimum
/// does not depend on the order of segments, so self-crossings are not darker and a stroke drawn
/// piece by piece into one distance field has the bytes of one drawn at once. Each pixel gets the
/// same bytes whatever part of the plane `target` is.
///
/// Costs grow with length · width: meant for pens of up to `maxWidthByDistance`. A pen thinner than
/// a pixel draws as one of a pixel, lighter in proportion. A width that is not positive draws
/// nothing.
void strokeByDistance(const FlattenedPath& path, double deviceWidth, const PixelBuffer& target,
                      PackedColor color);

/// Raises the coverages of `mask` to those with which strokeByDistance() would draw the polyline.
void coverByDistance(const FlattenedPath& path, double deviceWidth, const CoverageMask& mask);

/// Holds what strokeByDistance() would blend into the pixels of `area` that are not covered yet,
/// and covers those that it would make opaque.
void holdByDistance(const FlattenedPath& path, double deviceWidth, const IntRect& area,
                    PackedColor color, HeldCoverage& held);

/// Blends what was held of one stroke. Pixels that are covered by what was held before it get bytes
/// that mean nothing until that is blended too.
void blendHeld(std::span<const CoverageBlock> blocks, const PixelBuffer& target, PackedColor color);

/// The pixels that strokeByDistance() may touch.
IntRect areaByDistance(const FlattenedPath& path, double deviceWidth);

/// Above this width, in device pixels, filling the outline of the stroke is faster: measured, curvy
/// strokes change sides at 36 and straight ones at 18.
inline constexpr double maxWidthByDistance = 24;

}  // namespace marlevo
