#pragma once

#include "graphics/GraphicsContext.h"
#include "graphics/Size.h"

#include <cairo.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace marlevo {

/// Draws on the one page of a PDF file, one unit a point, by cairo's PDF surface.
///
/// Strokes and fills stay paths, each one painting operation: readers blend it as a whole, so a
/// translucent stroke is not darker where it crosses itself. Coordinates are kept to 1/256 of a
/// point. Paths that reach far beyond the page become straight segments (PdfPath.h).
class PdfContext final : public GraphicsContext {
public:
    /// The sides of a page, in points: less than the least cannot be told from nothing in three
    /// decimals, and paths beyond the most do not fit cairo's coordinates. Some readers refuse
    /// pages of more than 14,400 points (200 inches), most do not.
    static constexpr double minSide = 0.001;
    static constexpr double maxSide = 524288;

    /// Whether a page can have the size.
    static bool isPageSize(Size size);

    /// The media box is exactly `page`, which must be a page size.
    explicit PdfContext(Size page);
    PdfContext(const PdfContext&) = delete;
    PdfContext& operator=(const PdfContext&) = delete;

    void saveState() override;
    void restoreState() override;
    void scale(double x, double y) override;
    void setAlpha(double alpha) override;
    void fillRect(const Rect& rect, const Color& color) override;
    void fillPath(const Path& path, const Color& color) override;
    void strokePath(const Path& path, const Color& color, double lineWidth) override;
    void drawImage(const RasterImage& image, const Rect& rect) override;

    /// Keeps the bytes of a JPEG file where page readers show them as the pixels are
    /// (EmbeddableJpeg.h); other files are kept as their pixels, without loss. The bytes must stay
    /// until the page is finished.
    void drawImageFile(std::span<const std::uint8_t> file, const RasterImage& decoded,
                       const Rect& rect) override;

    /// The file, or nothing when it did not come about, for want of memory say. Nothing can be
    /// drawn any more.
    std::optional<std::vector<std::uint8_t>> finish();

private:
    struct Release {
        void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
        void operator()(cairo_t* cairo) const { cairo_destroy(cairo); }
    };
    using Surface = std::unique_ptr<cairo_surface_t, Release>;

    struct State {
        double alpha = 1;
        bool isDegenerate = false;  ///< the frame has no area: nothing can be seen
    };

    double farthest(double lineWidth) const;
    bool selectColor(const Color& color);
    void drawSurface(Surface image, const Rect& rect, int orientation);

    Size page_;
    std::vector<std::uint8_t> file_;
    State state_;
    std::vector<State> saved_;
    std::vector<Surface> images_;  ///< kept alive, or cairo would copy their pixels
    bool lacksImage_ = false;      ///< there was no memory for its pixels
    Surface surface_;
    std::unique_ptr<cairo_t, Release> cairo_;
};

}  // namespace marlevo
