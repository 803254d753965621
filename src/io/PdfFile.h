#pragma once

#include "graphics/RasterImage.h"
#include "graphics/Size.h"
#include "io/EmbeddableJpeg.h"
#include "io/PdfContent.h"

#include <qpdf/qpdf-c.h>

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

namespace marlevo {

/// A PDF file of one page, written by qpdf: the objects around the page's content. Equal pages make
/// equal files. Each operation may throw std::exception, for example when memory is short.
class PdfFile {
public:
    explicit PdfFile(Size page);

    /// Adds an image and returns the name that paints it in the unit square, its top row uppermost.
    /// The pixels are packed without loss.
    std::string addImage(const RasterImage& image);
    /// The same for a JPEG file, whose bytes are kept.
    std::string addJpeg(std::span<const std::uint8_t> file, const EmbeddableJpeg& jpeg);

    /// The name of the graphics state that paints with the opacity, 0 to 1, which is kept to the
    /// decimals of PdfContent::addFine().
    std::string addOpacity(double opacity);

    /// The bytes of the file, whose page has the content. To be called once.
    std::vector<std::uint8_t> write(std::vector<PackedBytes> content);

private:
    using Object = qpdf_oh;

    struct Release {
        void operator()(qpdf_data pdf) const { qpdf_cleanup(&pdf); }
    };

    Object addStream(std::span<const std::uint8_t> bytes, const char* filter);
    Object addImageStream(std::span<const std::uint8_t> bytes, const char* filter, int width,
                          int height, const char* colorSpace);
    std::string nameImage(Object image);
    void setEntry(Object dictionary, const char* key, const std::string& value);
    void throwIfFailed();

    std::unique_ptr<std::remove_pointer_t<qpdf_data>, Release> pdf_;
    Size page_;
    Object images_;
    Object graphicsStates_;
    int imageCount_ = 0;
};

}  // namespace marlevo
