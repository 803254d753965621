#include "io/PdfContext.h"

#include "graphics/Polyline.h"
#include "io/EmbeddableJpeg.h"
#include "io/PdfImage.h"
#include "io/PdfPath.h"

#include <algorithm>
#include <cmath>

namespace marlevo {

namespace {

/// What turns the unit square of an image with an Exif orientation, its top row uppermost, upright;
/// by orientation, from 1.
constexpr std::array<const char*, 8> uprightMatrices{
    "",
    "-1 0 0 1 1 0 cm ",
    "-1 0 0 -1 1 1 cm ",
    "1 0 0 -1 0 1 cm ",
    "0 -1 -1 0 1 1 cm ",
    "0 -1 1 0 0 1 cm ",
    "0 1 1 0 0 0 cm ",
    "0 1 -1 0 1 0 cm ",
};

const char* uprightMatrix(int orientation) {
    return uprightMatrices[static_cast<std::size_t>(orientation) - 1];
}

// A width of 0 would be a line of one device pixel, however fine the device.
constexpr double thinnestLine = 0.001;
// From anywhere within the coordinates this covers all of them.
constexpr double widestLine = 4 * FlattenedPath::maxCoordinate;

// Readers that count in fixed point lose paths that reach farther when they enlarge the page.
constexpr double safeCoordinate = 32768;

/// From 0 to 1000; 0 for what is no number.
int toThousandths(double unit) {
    return unit > 0 ? static_cast<int>(std::lround(std::min(unit, 1.0) * 1000)) : 0;
}

bool isFinite(const Rect& rect) {
    return std::isfinite(rect.minX()) && std::isfinite(rect.minY()) && std::isfinite(rect.maxX()) &&
           std::isfinite(rect.maxY());
}

/// Whether the JPEG's pixels turn into the decoded ones: a codec may see an orientation elsewhere.
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

PdfContext::PdfContext(Size page) : page_(page) { text_ = "1 J 1 j\n"; }

void PdfContext::saveState() {
    saved_.push_back(state_);
    text_ += "q\n";
}

void PdfContext::restoreState() {
    if (saved_.empty()) return;
    state_ = saved_.back();
    saved_.pop_back();
    text_ += "Q\n";
}

void PdfContext::scale(double x, double y) {
    if (!std::isfinite(x) || !std::isfinite(y) || x == 0 || y == 0) {
        state_.isDegenerate = true;
        return;
    }
    appendExactPdfNumber(text_, x);
    text_ += "0 0 ";
    appendExactPdfNumber(text_, y);
    text_ += "0 0 cm\n";
}

void PdfContext::setAlpha(double alpha) { state_.alpha = alpha; }

void PdfContext::fillRect(const Rect& rect, const Color& color) {
    Path path;
    path.addRect(rect);
    fillPath(path, color);
}

void PdfContext::fillPath(const Path& path, const Color& color) {
    if (!selectOpacity(color.alpha)) return;
    selectFill(color);
    if (appendPdfPath(text_, path, PathUse::fill, farthest(0))) text_ += "f\n";
    compressFullText();
}

void PdfContext::strokePath(const Path& path, const Color& color, double lineWidth) {
    if (!(lineWidth > 0) || !selectOpacity(color.alpha)) return;
    selectStroke(color, lineWidth);
    if (appendPdfPath(text_, path, PathUse::stroke, farthest(lineWidth))) text_ += "S\n";
    compressFullText();
}

void PdfContext::drawImage(const RasterImage& image, const Rect& rect) {
    if (!isFinite(rect) || !selectOpacity(1)) return;
    addImage(addPdfImage(file_, image), rect, "");
}

void PdfContext::drawImageFile(std::span<const std::uint8_t> file, const RasterImage& decoded,
                               const Rect& rect) {
    const auto jpeg = EmbeddableJpeg::recognise(file);
    if (!jpeg || !matches(*jpeg, decoded)) return drawImage(decoded, rect);
    if (!isFinite(rect) || !selectOpacity(1)) return;
    addImage(addPdfImage(file_, *jpeg, file), rect, uprightMatrix(jpeg->orientation));
}

std::vector<std::uint8_t> PdfContext::finish() {
    for (; !saved_.empty(); saved_.pop_back())
        text_ += "Q\n";
    commands_.append({reinterpret_cast<const std::uint8_t*>(text_.data()), text_.size()});
    const PdfFile::Object contents = file_.addStream("/Filter /FlateDecode", commands_.finish());

    std::string resources = "<< /ExtGState <<";
    for (const Thousandths opacity : opacities_) {
        resources += " /A" + std::to_string(opacity) + " << /ca ";
        appendPdfNumber(resources, opacity / 1000.0);
        resources += "/CA ";
        appendPdfNumber(resources, opacity / 1000.0);
        resources += ">>";
    }
    resources += " >> /XObject <<";
    for (std::size_t i = 0; i < images_.size(); ++i)
        resources += " /I" + std::to_string(i) + " " + PdfFile::reference(images_[i]);
    resources += " >> >>";

    const PdfFile::Object pages = file_.reserve();
    const PdfFile::Object page = file_.reserve();
    const PdfFile::Object catalog = file_.reserve();
    std::string box = "[0 0 ";
    appendExactPdfNumber(box, page_.width);
    appendExactPdfNumber(box, page_.height);
    box += "]";
    // The group says in which colours translucent marks are blended.
    file_.add(page, "<< /Type /Page /Parent " + PdfFile::reference(pages) + " /MediaBox " + box +
                        " /Resources " + resources + " /Contents " + PdfFile::reference(contents) +
                        " /Group << /Type /Group /S /Transparency /I true /CS /DeviceRGB >> >>");
    file_.add(pages, "<< /Type /Pages /Count 1 /Kids [" + PdfFile::reference(page) + "] >>");
    file_.add(catalog, "<< /Type /Catalog /Pages " + PdfFile::reference(pages) + " >>");
    return file_.finish(catalog);
}

/// How far paths drawn with this pen may reach, so that what lies beyond cannot be seen.
double PdfContext::farthest(double lineWidth) const {
    const double far = std::max({safeCoordinate, page_.width, page_.height}) + lineWidth;
    return std::min(far, FlattenedPath::maxCoordinate);
}

/// Makes the alpha and the colour's the page's; false when nothing can be seen with them.
bool PdfContext::selectOpacity(double colorAlpha) {
    const auto clamped = [](double alpha) { return alpha > 0 ? std::min(alpha, 1.0) : 0.0; };
    const Thousandths opacity = toThousandths(clamped(state_.alpha) * clamped(colorAlpha));
    if (opacity == 0 || state_.isDegenerate) return false;
    if (opacity != state_.opacity) {
        state_.opacity = opacity;
        opacities_.insert(opacity);
        text_ += "/A" + std::to_string(opacity) + " gs\n";
    }
    return true;
}

void PdfContext::selectFill(const Color& color) {
    const Ink ink{toThousandths(color.red), toThousandths(color.green), toThousandths(color.blue)};
    if (ink == state_.fill) return;
    state_.fill = ink;
    appendInk(ink, "rg\n");
}

void PdfContext::selectStroke(const Color& color, double lineWidth) {
    const Ink ink{toThousandths(color.red), toThousandths(color.green), toThousandths(color.blue)};
    if (ink != state_.stroke) {
        state_.stroke = ink;
        appendInk(ink, "RG\n");
    }
    if (lineWidth != state_.lineWidth) {
        state_.lineWidth = lineWidth;
        appendPdfNumber(text_, std::clamp(lineWidth, thinnestLine, widestLine));
        text_ += "w\n";
    }
}

void PdfContext::appendInk(const Ink& ink, const char* command) {
    for (const Thousandths component : ink)
        appendPdfNumber(text_, component / 1000.0);
    text_ += command;
}

/// Draws the image object over the rectangle; `placement` is applied to its unit square first.
void PdfContext::addImage(PdfFile::Object image, const Rect& rect, const char* placement) {
    text_ += "q ";
    appendExactPdfNumber(text_, rect.size.width);
    text_ += "0 0 ";
    appendExactPdfNumber(text_, rect.size.height);
    appendExactPdfNumber(text_, rect.minX());
    appendExactPdfNumber(text_, rect.minY());
    text_ += "cm ";
    text_ += placement;
    text_ += "/I" + std::to_string(images_.size()) + " Do Q\n";
    images_.push_back(image);
}

void PdfContext::compressFullText() {
    constexpr std::size_t full = std::size_t{1} << 16;
    if (text_.size() < full) return;
    commands_.append({reinterpret_cast<const std::uint8_t*>(text_.data()), text_.size()});
    text_.clear();
}

}  // namespace marlevo
