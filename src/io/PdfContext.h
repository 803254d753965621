#pragma once

#include "graphics/GraphicsContext.h"
#include "io/DeflateStream.h"
#include "io/PdfFile.h"

#include <array>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace marlevo {

/// Draws on the one page of a PDF file, one unit a point.
///
/// Strokes and fills stay paths, each one painting operation: readers blend it as a whole, so a
/// translucent stroke is not darker where it crosses itself. Coordinates are kept to a thousandth
/// of a point, alpha and colour components to a thousandth. Paths that reach far beyond the page
/// become straight segments (PdfPath.h).
///
/// Members throw std::bad_alloc when there is no memory.
class PdfContext final : public GraphicsContext {
public:
    /// The sides of a page, in points: less than the least cannot be told from nothing in three
    /// decimals, and farther than the most no path reaches. Some readers refuse pages of more than
    /// 14,400 points (200 inches), most do not.
    static constexpr double minSide = 0.001;
    static constexpr double maxSide = 4194304;

    /// Whether a page can have the size.
    static bool isPageSize(Size size);

    /// The media box is exactly `page`, which must be a page size.
    explicit PdfContext(Size page);

    void saveState() override;
    void restoreState() override;
    void scale(double x, double y) override;
    void setAlpha(double alpha) override;
    void fillRect(const Rect& rect, const Color& color) override;
    void fillPath(const Path& path, const Color& color) override;
    void strokePath(const Path& path, const Color& color, double lineWidth) override;
    void drawImage(const RasterImage& image, const Rect& rect) override;

    /// Keeps the bytes of a JPEG file where page readers show them as the pixels are
    /// (EmbeddableJpeg.h); other files are kept as their pixels, without loss.
    void drawImageFile(std::span<const std::uint8_t> file, const RasterImage& decoded,
                       const Rect& rect) override;

    /// The file. Nothing can be drawn any more.
    std::vector<std::uint8_t> finish();

private:
    using Thousandths = int;
    using Ink = std::array<Thousandths, 3>;

    /// `alpha` is ours; the rest is what the page's own graphics state holds.
    struct State {
        double alpha = 1;
        bool isDegenerate = false;  ///< the frame has no area: nothing can be seen
        Thousandths opacity = 1000;
        Ink fill{};
        Ink stroke{};
        std::optional<double> lineWidth;
    };

    double farthest(double lineWidth) const;
    bool selectOpacity(double colorAlpha);
    void selectFill(const Color& color);
    void selectStroke(const Color& color, double lineWidth);
    void appendInk(const Ink& ink, const char* command);
    void addImage(PdfFile::Object image, const Rect& rect, const char* placement);
    void compressFullText();

    Size page_;
    PdfFile file_;
    State state_;
    std::vector<State> saved_;
    std::set<Thousandths> opacities_;
    std::vector<PdfFile::Object> images_;
    std::string text_;  ///< drawing commands not yet compressed
    DeflateStream commands_{DeflateStream::Content::numbers};
};

}  // namespace marlevo
