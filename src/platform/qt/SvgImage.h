#pragma once

#include <QByteArray>
#include <QImage>

namespace marlevo {

/// Draws an SVG file in its own size, or smaller if that bounds the time. Null if the file is not
/// SVG, or refused. Callable on any thread.
///
/// Qt's renderer opens files that a drawing names, and has no bound of its own. So these are
/// refused before it sees the file: packed files, document types, processing instructions, images,
/// references to anything but an element of the same file, uses within uses, and files beyond
/// `maxSvgBytes`, `maxSvgElements` or `maxSvgDepth`.
QImage svgImage(const QByteArray& file);

constexpr qsizetype maxSvgBytes = qsizetype{4} << 20;

/// Elements that are painted; those that a `use` element repeats count again.
constexpr qsizetype maxSvgElements = 10'000;

constexpr qsizetype maxSvgDepth = 256;

}  // namespace marlevo
