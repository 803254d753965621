#include "io/PdfContext.h"

#include "graphics/BitmapContext.h"
#include "graphics/FlattenedPath.h"
#include "io/EmbeddableJpeg.h"
#include "io/PdfPath.h"

#include <cairo-pdf.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <new>

namespace marlevo {

namespace {

/// What turns the unit square of an image with an Exif orientation, its top row uppermost, upright;
/// by orientation, from 1.
constexpr std::array<cairo_matrix_t, 8> uprightMatrices{{
    {1, 0, 0, 1, 0, 0},
    {-1, 0, 0, 1, 1, 0},
    {-1, 0, 0, -1, 1, 1},
    {1, 0, 0, -1, 0, 1},
    {0, -1, -1, 0, 1, 1},
    {0, -1, 1, 0, 0, 1},
    {0, 1, 1, 0, 0, 0},
    {0, 1, -1, 0, 1, 0},
}};

// A width of 0 would be a line of one device pixel, however fine the device.
constexpr double thinnestLine = 0.001;
// From anywhere near the page this covers all of it, and still fits cairo's coordinates.
constexpr double widestLine = 4 * PdfContext::maxSide;

// Readers that count in fixed point lose paths that reach farther when they enlarge the page.
constexpr double safeCoordinate = 32768;

/// The most pixels of a cairo image in either direction.
constexpr int longestImageSide = 32767;

/// 0 for what is no number.
double unitClamped(double value) { return value > 0 ? std::min(value, 1.0) : 0; }

bool canHoldImage(const Rect& rect) {
    const auto isSide = [](double side) { return std::isnormal(side); };
    return std::isfinite(rect.minX()) && std::isfinite(rect.minY()) && std::isfinite(rect.maxX()) &&
           std::isfinite(rect.maxY()) && isSide(rect.size.width) && isSide(rect.size.height);
}

/// Whether the JPEG's pixels turn into the decoded ones: a codec may see an orientation elsewhere.
bool matches(const EmbeddableJpeg& jpeg, const RasterImage& decoded) {
    const bool isTurned = jpeg.orientation >= 5;
    return decoded.width() == (isTurned ? jpeg.height : jpeg.width) &&
           decoded.height() == (isTurned ? jpeg.width : jpeg.height);
}

cairo_status_t append(void* file, const unsigned char* bytes, unsigned length) {
    try {
        auto& whole = *static_cast<std::vector<std::uint8_t>*>(file);
        whole.insert(whole.end(), bytes, bytes + length);
        return CAIRO_STATUS_SUCCESS;
    } catch (const std::bad_alloc&) {
        return CAIRO_STATUS_NO_MEMORY;
    }
}

/// Draws the image over the whole of a cairo image, whose pixels are words of the machine.
void copyPixels(const RasterImage& image, cairo_surface_t* to) {
    static_assert(std::endian::native == std::endian::little);
    const int width = cairo_image_surface_get_width(to);
    const int height = cairo_image_surface_get_height(to);
    BitmapContext context({cairo_image_surface_get_data(to),
                           cairo_image_surface_get_stride(to),
                           {0, 0, width, height},
                           PixelOrder::bgra},
                          DeviceFrame::yUp(height));
    context.drawImage(image, {{0, 0}, {static_cast<double>(width), static_cast<double>(height)}});
    cairo_surface_mark_dirty(to);
}

}  // namespace

bool PdfContext::isPageSize(Size size) {
    const auto isSide = [](double side) { return side >= minSide && side <= maxSide; };
    return isSide(size.width) && isSide(size.height);
}

PdfContext::PdfContext(Size page)
    : page_(page),
      surface_(cairo_pdf_surface_create_for_stream(append, &file_, page.width, page.height)),
      cairo_(cairo_create(surface_.get())) {
    // Equal pictures make equal files.
    cairo_pdf_surface_set_metadata(surface_.get(), CAIRO_PDF_METADATA_CREATE_DATE, "");
    cairo_set_line_cap(cairo_.get(), CAIRO_LINE_CAP_ROUND);
    cairo_set_line_join(cairo_.get(), CAIRO_LINE_JOIN_ROUND);
    cairo_translate(cairo_.get(), 0, page.height);
    cairo_scale(cairo_.get(), 1, -1);
}

void PdfContext::saveState() {
    saved_.push_back(state_);
    cairo_save(cairo_.get());
}

void PdfContext::restoreState() {
    if (saved_.empty()) return;
    state_ = saved_.back();
    saved_.pop_back();
    cairo_restore(cairo_.get());
}

void PdfContext::scale(double x, double y) {
    if (std::isnormal(x) && std::isnormal(y)) {
        cairo_scale(cairo_.get(), x, y);
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
    if (!selectColor(color)) return;
    if (setPdfPath(cairo_.get(), path, PathUse::fill, farthest(0))) cairo_fill(cairo_.get());
}

void PdfContext::strokePath(const Path& path, const Color& color, double lineWidth) {
    if (!(lineWidth > 0) || !selectColor(color)) return;
    const double width = std::clamp(lineWidth, thinnestLine, widestLine);
    cairo_set_line_width(cairo_.get(), width);
    if (setPdfPath(cairo_.get(), path, PathUse::stroke, farthest(width)))
        cairo_stroke(cairo_.get());
}

void PdfContext::drawImage(const RasterImage& image, const Rect& rect) {
    Surface pixels(cairo_image_surface_create(CAIRO_FORMAT_ARGB32,
                                              std::min(image.width(), longestImageSide),
                                              std::min(image.height(), longestImageSide)));
    if (cairo_surface_status(pixels.get()) != CAIRO_STATUS_SUCCESS) {
        lacksImage_ = true;
        return;
    }
    copyPixels(image, pixels.get());
    drawSurface(std::move(pixels), rect, 1);
}

void PdfContext::drawImageFile(std::span<const std::uint8_t> file, const RasterImage& decoded,
                               const Rect& rect) {
    const auto jpeg = EmbeddableJpeg::recognise(file);
    if (!jpeg || !matches(*jpeg, decoded)) return drawImage(decoded, rect);
    // cairo puts the file in the place of these pixels, which nobody looks at.
    Surface stored(cairo_image_surface_create(CAIRO_FORMAT_RGB24, jpeg->width, jpeg->height));
    cairo_surface_set_mime_data(stored.get(), CAIRO_MIME_TYPE_JPEG, file.data(), file.size(),
                                nullptr, nullptr);
    if (cairo_surface_status(stored.get()) != CAIRO_STATUS_SUCCESS) return drawImage(decoded, rect);
    drawSurface(std::move(stored), rect, jpeg->orientation);
}

std::optional<std::vector<std::uint8_t>> PdfContext::finish() {
    const cairo_status_t drawn = cairo_status(cairo_.get());
    cairo_.reset();
    cairo_surface_finish(surface_.get());
    if (lacksImage_ || drawn != CAIRO_STATUS_SUCCESS ||
        cairo_surface_status(surface_.get()) != CAIRO_STATUS_SUCCESS)
        return std::nullopt;
    return std::move(file_);
}

/// How far paths drawn with this pen may reach, so that what lies beyond cannot be seen.
double PdfContext::farthest(double lineWidth) const {
    return std::max({safeCoordinate, page_.width, page_.height}) + lineWidth;
}

/// Makes the colour with the alpha cairo's source; false when nothing can be seen with it.
bool PdfContext::selectColor(const Color& color) {
    const double opacity = unitClamped(state_.alpha) * unitClamped(color.alpha);
    if (opacity == 0 || state_.isDegenerate) return false;
    cairo_set_source_rgba(cairo_.get(), unitClamped(color.red), unitClamped(color.green),
                          unitClamped(color.blue), opacity);
    return true;
}

/// Draws the image, whose rows have the Exif orientation, upright over the rectangle.
void PdfContext::drawSurface(Surface image, const Rect& rect, int orientation) {
    if (!canHoldImage(rect) || state_.isDegenerate) return;
    cairo_t* cairo = cairo_.get();
    cairo_save(cairo);
    cairo_translate(cairo, rect.minX(), rect.minY());
    cairo_scale(cairo, rect.size.width, rect.size.height);
    cairo_transform(cairo, &uprightMatrices[static_cast<std::size_t>(orientation) - 1]);
    cairo_translate(cairo, 0, 1);
    cairo_scale(cairo, 1.0 / cairo_image_surface_get_width(image.get()),
                -1.0 / cairo_image_surface_get_height(image.get()));
    cairo_set_source_surface(cairo, image.get(), 0, 0);
    cairo_paint_with_alpha(cairo, unitClamped(state_.alpha));
    cairo_restore(cairo);
    images_.push_back(std::move(image));
}

}  // namespace marlevo
