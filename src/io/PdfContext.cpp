#include "io/PdfContext.h"

#include "io/EmbeddableJpeg.h"
#include "io/PdfPath.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace marlevo {

namespace {

/// The matrix that turns the unit square of an image upright, for each Exif orientation from 1: the
/// six numbers of a PDF matrix. The image's top row is uppermost before.
constexpr std::array<std::array<double, 6>, 8> uprightMatrices{{
    {1, 0, 0, 1, 0, 0},
    {-1, 0, 0, 1, 1, 0},
    {-1, 0, 0, -1, 1, 1},
    {1, 0, 0, -1, 0, 1},
    {0, -1, -1, 0, 1, 1},
    {0, -1, 1, 0, 0, 1},
    {0, 1, 1, 0, 0, 0},
    {0, 1, -1, 0, 1, 0},
}};

// A width of 0 means one device pixel, whatever the resolution of the device.
constexpr double thinnestLine = 0.001;

// Readers with fixed-point coordinates lose paths beyond this when the page is enlarged.
constexpr double safeCoordinate = 32768;

/// 0 for NaN.
double unitClamped(double value) { return value > 0 ? std::min(value, 1.0) : 0; }

bool canHoldImage(const Rect& rect) {
    const auto isSide = [](double side) { return std::isnormal(side); };
    const auto isCoordinate = [](double c) { return std::abs(c) <= 4 * PdfContext::maxSide; };
    return isCoordinate(rect.minX()) && isCoordinate(rect.minY()) && isCoordinate(rect.maxX()) &&
           isCoordinate(rect.maxY()) && isSide(rect.size.width) && isSide(rect.size.height);
}

/// True if the JPEG has the decoded size when upright. A codec may use another orientation.
bool matches(const EmbeddableJpeg& jpeg, const RasterImage& decoded) {
    const bool isTurned = jpeg.orientation >= 5;
    return decoded.width() == (isTurned ? jpeg.height : jpeg.width) &&
           decoded.height() == (isTurned ? jpeg.width : jpeg.height);
}

}  // namespace

bool PdfContext::isPageSize(Size size) {
    const auto isSide = [](double side) { return side >= minSide && side <= maxSide; };
    return isSide(size.width) && isSide(size.height);
}

PdfContext::PdfContext(Size page) : page_(page), file_(page) {
    content_.add("1 J 1 j");  // round caps and joins
}

void PdfContext::saveState() {
    saved_.push_back(state_);
    content_.add("q");
}

void PdfContext::restoreState() {
    if (saved_.empty()) return;
    state_ = saved_.back();
    saved_.pop_back();
    content_.add("Q");
}

void PdfContext::scale(double x, double y) {
    if (std::isnormal(x) && std::isnormal(y)) {
        content_.addFine({x, 0, 0, y, 0, 0}, "cm");
    } else {
        state_.isDegenerate = true;
    }
}

void PdfContext::setAlpha(double alpha) { state_.alpha = alpha; }

void PdfContext::fillRect(const Rect& rect, const Color& color) {
    Path path;
    path.addRect(rect);
    fillPath(path, color);
}

void PdfContext::fillPath(const Path& path, const Color& color) {
    if (!selectOpacity(color.alpha)) return;
    selectColor(state_.fillColor, color, "rg");
    if (addPdfPath(content_, path, PathUse::fill, farthest(0))) content_.add("f");
}

void PdfContext::strokePath(const Path& path, const Color& color, double lineWidth) {
    if (!(lineWidth > 0) || !selectOpacity(color.alpha)) return;
    selectColor(state_.strokeColor, color, "RG");
    // A line of this width covers the whole page from any point near it.
    const double widestLine = 4 * farthest(0);
    const double width = std::clamp(lineWidth, thinnestLine, widestLine);
    if (width != state_.lineWidth) content_.addFine({width}, "w");
    state_.lineWidth = width;
    if (addPdfPath(content_, path, PathUse::stroke, farthest(width))) content_.add("S");
}

void PdfContext::drawImage(const RasterImage& image, const Rect& rect) {
    if (canHoldImage(rect) && selectOpacity(1)) paintImage(file_.addImage(image), rect, 1);
}

void PdfContext::drawImageFile(std::span<const std::uint8_t> file, const RasterImage& decoded,
                               const Rect& rect) {
    const auto jpeg = EmbeddableJpeg::recognise(file);
    if (!jpeg || !matches(*jpeg, decoded)) return drawImage(decoded, rect);
    if (canHoldImage(rect) && selectOpacity(1))
        paintImage(file_.addJpeg(file, *jpeg), rect, jpeg->orientation);
}

std::vector<std::uint8_t> PdfContext::finish() { return file_.write(content_.finish()); }

/// The largest coordinate of paths drawn with this pen. Parts beyond it are invisible.
double PdfContext::farthest(double lineWidth) const {
    return std::max({safeCoordinate, page_.width, page_.height}) + lineWidth;
}

/// Sets the opacity of the next operations to the global alpha times the given one. False if these
/// would be invisible.
bool PdfContext::selectOpacity(double alpha) {
    const double opacity = unitClamped(state_.alpha) * unitClamped(alpha);
    if (opacity == 0 || state_.isDegenerate) return false;
    if (opacity != state_.opacity) content_.add(file_.addOpacity(opacity) + " gs");
    state_.opacity = opacity;
    return true;
}

void PdfContext::selectColor(Rgb& current, const Color& color, std::string_view name) {
    const Rgb wanted{unitClamped(color.red), unitClamped(color.green), unitClamped(color.blue)};
    if (wanted != current) content_.addFine({wanted.red, wanted.green, wanted.blue}, name);
    current = wanted;
}

/// Paints the image, whose rows have the Exif orientation, upright over the rectangle.
void PdfContext::paintImage(const std::string& name, const Rect& rect, int orientation) {
    const auto& upright = uprightMatrices[static_cast<std::size_t>(orientation) - 1];
    content_.add("q");
    content_.add({rect.size.width, 0, 0, rect.size.height, rect.minX(), rect.minY()}, "cm");
    if (orientation != 1)
        content_.add({upright[0], upright[1], upright[2], upright[3], upright[4], upright[5]},
                     "cm");
    content_.add(name + " Do");
    content_.add("Q");
}

}  // namespace marlevo
