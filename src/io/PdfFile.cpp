#include "io/PdfFile.h"

#include "io/FixedDecimal.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <stdexcept>
#include <string_view>

namespace marlevo {

namespace {

std::string decimal(double value) {
    char digits[maxFixedLength];
    return {digits, writeFixed<PdfContent::fineDecimals>(value, digits)};
}

std::string_view text(const std::vector<std::uint8_t>& bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

/// The pixels' colours without their alpha, three bytes each.
std::vector<std::uint8_t> colorsOf(const RasterImage& image) {
    const auto pixels = image.bytes();
    std::vector<std::uint8_t> colors;
    colors.reserve(pixels.size() / RasterImage::bytesPerPixel * 3);
    for (std::size_t at = 0; at < pixels.size(); at += RasterImage::bytesPerPixel) {
        const unsigned alpha = pixels[at];
        for (std::size_t i = 1; i <= 3; ++i) {
            const unsigned color = pixels[at + i];
            colors.push_back(static_cast<std::uint8_t>(
                alpha == 0 ? 0 : std::min((color * 255 + alpha / 2) / alpha, 255U)));
        }
    }
    return colors;
}

/// The alphas of the pixels, or nothing when all are opaque.
std::vector<std::uint8_t> alphasOf(const RasterImage& image) {
    const auto pixels = image.bytes();
    std::vector<std::uint8_t> alphas(pixels.size() / RasterImage::bytesPerPixel);
    std::uint8_t all = 255;
    for (std::size_t i = 0; i < alphas.size(); ++i) {
        alphas[i] = pixels[i * RasterImage::bytesPerPixel];
        all &= alphas[i];
    }
    if (all == 255) alphas.clear();
    return alphas;
}

}  // namespace

PdfFile::PdfFile(Size page) : pdf_(qpdf_init()), page_(page) {
    qpdf_silence_errors(pdf_.get());
    qpdf_empty_pdf(pdf_.get());
    images_ = qpdf_oh_new_dictionary(pdf_.get());
    graphicsStates_ = qpdf_oh_new_dictionary(pdf_.get());
    throwIfFailed();
}

std::string PdfFile::addImage(const RasterImage& image) {
    const Object stream =
        addImageStream(packForPdf(text(colorsOf(image)), Packing::small), "/FlateDecode",
                       image.width(), image.height(), "/DeviceRGB");
    if (const auto alphas = alphasOf(image); !alphas.empty()) {
        const Object mask = addImageStream(packForPdf(text(alphas), Packing::small), "/FlateDecode",
                                           image.width(), image.height(), "/DeviceGray");
        qpdf_oh_replace_key(pdf_.get(), qpdf_oh_get_dict(pdf_.get(), stream), "/SMask", mask);
    }
    return nameImage(stream);
}

std::string PdfFile::addJpeg(std::span<const std::uint8_t> file, const EmbeddableJpeg& jpeg) {
    return nameImage(addImageStream(file, "/DCTDecode", jpeg.width, jpeg.height,
                                    jpeg.isGray ? "/DeviceGray" : "/DeviceRGB"));
}

std::string PdfFile::addOpacity(double opacity) {
    // Named by the value, so that equal values share one object.
    std::string name = "/a" + std::to_string(std::lround(opacity * 10000));
    if (!qpdf_oh_has_key(pdf_.get(), graphicsStates_, name.c_str())) {
        const std::string value = decimal(opacity);
        setEntry(graphicsStates_, name.c_str(), "<< /CA " + value + " /ca " + value + " >>");
        throwIfFailed();
    }
    return name;
}

std::vector<std::uint8_t> PdfFile::write(std::vector<PackedBytes> content) {
    qpdf_data pdf = pdf_.get();
    const Object contents = qpdf_oh_new_array(pdf);
    for (PackedBytes& piece : content) {
        qpdf_oh_append_item(pdf, contents, addStream(piece, "/FlateDecode"));
        piece = {};
    }
    const Object resources = qpdf_oh_new_dictionary(pdf);
    qpdf_oh_replace_key(pdf, resources, "/ExtGState", graphicsStates_);
    qpdf_oh_replace_key(pdf, resources, "/XObject", images_);
    const Object page = qpdf_oh_new_dictionary(pdf);
    setEntry(page, "/Type", "/Page");
    setEntry(page, "/MediaBox",
             "[ 0 0 " + decimal(page_.width) + " " + decimal(page_.height) + " ]");
    setEntry(page, "/Group", "<< /S /Transparency /CS /DeviceRGB /I true >>");
    qpdf_oh_replace_key(pdf, page, "/Resources", resources);
    qpdf_oh_replace_key(pdf, page, "/Contents", contents);
    qpdf_add_page(pdf, pdf, qpdf_make_indirect_object(pdf, page), QPDF_FALSE);
    throwIfFailed();

    qpdf_init_write_memory(pdf);
    qpdf_set_minimum_pdf_version(pdf, "1.4");  // transparency
    qpdf_set_stream_data_mode(pdf, qpdf_s_preserve);
    qpdf_set_compress_streams(pdf, QPDF_FALSE);
    qpdf_set_deterministic_ID(pdf, QPDF_TRUE);
    qpdf_write(pdf);
    throwIfFailed();
    const unsigned char* const bytes = qpdf_get_buffer(pdf);
    return {bytes, bytes + qpdf_get_buffer_length(pdf)};
}

PdfFile::Object PdfFile::addStream(std::span<const std::uint8_t> bytes, const char* filter) {
    qpdf_data pdf = pdf_.get();
    const Object stream = qpdf_oh_new_stream(pdf);
    qpdf_oh_replace_stream_data(pdf, stream, bytes.data(), bytes.size(),
                                qpdf_oh_new_name(pdf, filter), qpdf_oh_new_null(pdf));
    throwIfFailed();
    return stream;
}

PdfFile::Object PdfFile::addImageStream(std::span<const std::uint8_t> bytes, const char* filter,
                                        int width, int height, const char* colorSpace) {
    const Object stream = addStream(bytes, filter);
    const Object entries = qpdf_oh_get_dict(pdf_.get(), stream);
    setEntry(entries, "/Type", "/XObject");
    setEntry(entries, "/Subtype", "/Image");
    setEntry(entries, "/Width", std::to_string(width));
    setEntry(entries, "/Height", std::to_string(height));
    setEntry(entries, "/ColorSpace", colorSpace);
    setEntry(entries, "/BitsPerComponent", "8");
    setEntry(entries, "/Interpolate", "true");
    throwIfFailed();
    return stream;
}

std::string PdfFile::nameImage(Object image) {
    std::string name = "/i" + std::to_string(imageCount_++);
    qpdf_oh_replace_key(pdf_.get(), images_, name.c_str(), image);
    return name;
}

void PdfFile::setEntry(Object dictionary, const char* key, const std::string& value) {
    qpdf_oh_replace_key(pdf_.get(), dictionary, key, qpdf_oh_parse(pdf_.get(), value.c_str()));
}

/// qpdf's C interface collects errors in place of throwing them.
void PdfFile::throwIfFailed() {
    if (!qpdf_has_error(pdf_.get())) return;
    throw std::runtime_error(qpdf_get_error_full_text(pdf_.get(), qpdf_get_error(pdf_.get())));
}

}  // namespace marlevo
