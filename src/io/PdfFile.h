#pragma once

#include "graphics/RasterImage.h"
#include "graphics/Size.h"
#include "io/EmbeddableJpeg.h"
#include "io/PdfContent.h"

#include <qpdf/QPDF.hh>

#include <cstdint>
#include <list>
#include <span>
#include <string>
#include <vector>

namespace marlevo {

/// A PDF file of one page, written by qpdf: the objects around the page's content. Equal pages make
/// equal files. Each operation may throw std::exception, for want of memory for example.
class PdfFile {
public:
    explicit PdfFile(Size page);

    /// Adds an image and returns the name that paints it in the unit square, its top row uppermost.
    /// The pixels are packed without loss.
    std::string addImage(const RasterImage& image);
    /// The same for a JPEG file, whose bytes are kept and must stay until write().
    std::string addJpeg(std::span<const std::uint8_t> file, const EmbeddableJpeg& jpeg);

    /// The name of the graphics state that paints with the opacity, 0 to 1, which is kept to the
    /// decimals of PdfContent::addFine().
    std::string addOpacity(double opacity);

    /// The bytes of the file, whose page has the content. To be called once.
    std::vector<std::uint8_t> write(std::vector<PackedBytes> content);

private:
    QPDFObjectHandle addStream(std::span<const std::uint8_t> bytes, const char* filter);
    QPDFObjectHandle addImageStream(std::span<const std::uint8_t> bytes, const char* filter,
                                    int width, int height, const char* colorSpace);
    std::string nameImage(const QPDFObjectHandle& image);

    QPDF pdf_;
    Size page_;
    QPDFObjectHandle images_ = QPDFObjectHandle::newDictionary();
    QPDFObjectHandle graphicsStates_ = QPDFObjectHandle::newDictionary();
    std::list<PackedBytes> kept_;  ///< the streams refer to these bytes
    int imageCount_ = 0;
};

}  // namespace marlevo
