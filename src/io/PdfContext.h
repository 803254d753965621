#pragma once

#include "graphics/GraphicsContext.h"
#include "graphics/Size.h"
#include "io/PdfContent.h"
#include "io/PdfFile.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace marlevo {

/// Draws on the one page of a PDF file, one unit a point.
///
/// Strokes and fills stay paths, each one painting operation: readers blend it as a whole, so a
/// translucent stroke is not darker where it crosses itself. Coordinates are kept to 1/1000 of a
/// point. Paths that reach far beyond the page become straight segments (PdfPath.h). Each operation
/// may throw std::exception, for example when memory is short; the page is incomplete then.
class PdfContext final : public GraphicsContext {
public:
    /// The range of a page's sides, in points. A shorter side is 0 in three decimals. A longer one
    /// overflows the coordinates of readers that use 32 bits. Some readers refuse pages of more
    /// than 14,400 points (200 inches), most do not.
    static constexpr double minSide = 0.001;
    static constexpr double maxSide = 1e9;

    /// Whether a page can have the size.
    static bool isPageSize(Size size);

    /// The media box is `page`, which must be a page size, to four decimals.
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

    /// Keeps the bytes of a JPEG file if page readers show it with the decoded pixels
    /// (EmbeddableJpeg.h); other files are kept as their pixels, without loss. The bytes must stay
    /// until the page is finished.
    void drawImageFile(std::span<const std::uint8_t> file, const RasterImage& decoded,
                       const Rect& rect) override;

    /// The bytes of the file. To be called once; nothing can be drawn afterwards.
    std::vector<std::uint8_t> finish();

private:
    struct Rgb {
        double red, green, blue;
        friend bool operator==(const Rgb&, const Rgb&) = default;
    };

    /// The state that the page's operators q and Q save and restore, and `alpha`.
    struct State {
        double alpha = 1;
        bool isDegenerate = false;  ///< the frame has no area: nothing can be seen
        double opacity = 1;
        double lineWidth = 1;
        Rgb strokeColor{0, 0, 0};
        Rgb fillColor{0, 0, 0};
    };

    double farthest(double lineWidth) const;
    bool selectOpacity(double alpha);
    void selectColor(Rgb& current, const Color& color, std::string_view name);
    void paintImage(const std::string& name, const Rect& rect, int orientation);

    Size page_;
    PdfFile file_;
    PdfContent content_;
    State state_;
    std::vector<State> saved_;
};

}  // namespace marlevo
