#include "io/PdfFile.h"

#include "io/FixedDecimal.h"

#include <qpdf/Buffer.hh>
#include <qpdf/Pipeline.hh>
#include <qpdf/QPDFWriter.hh>

#include <cmath>
#include <memory>
#include <string_view>
#include <utility>

namespace marlevo {

namespace {

/// Receives the file from qpdf.
class ByteSink final : public Pipeline {
public:
    ByteSink() : Pipeline("file", nullptr) {}

    void write(unsigned char const* bytes, std::size_t count) override {
        bytes_.insert(bytes_.end(), bytes, bytes + count);
    }
    void finish() override {}

    std::vector<std::uint8_t> take() { return std::move(bytes_); }
    void reserve(std::size_t size) { bytes_.reserve(size); }

private:
    std::vector<std::uint8_t> bytes_;
};

QPDFObjectHandle name(const char* text) { return QPDFObjectHandle::newName(text); }

QPDFObjectHandle number(double value) {
    char digits[maxFixedLength];
    return QPDFObjectHandle::parse({digits, writeFixed<PdfContent::fineDecimals>(value, digits)});
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

PdfFile::PdfFile(Size page) : page_(page) { pdf_.emptyPDF(); }

std::string PdfFile::addImage(const RasterImage& image) {
    kept_.push_back(packForPdf(text(colorsOf(image)), Packing::small));
    QPDFObjectHandle stream =
        addImageStream(kept_.back(), "/FlateDecode", image.width(), image.height(), "/DeviceRGB");
    if (const auto alphas = alphasOf(image); !alphas.empty()) {
        kept_.push_back(packForPdf(text(alphas), Packing::small));
        stream.getDict().replaceKey("/SMask",
                                    addImageStream(kept_.back(), "/FlateDecode", image.width(),
                                                   image.height(), "/DeviceGray"));
    }
    return nameImage(stream);
}

std::string PdfFile::addJpeg(std::span<const std::uint8_t> file, const EmbeddableJpeg& jpeg) {
    return nameImage(addImageStream(file, "/DCTDecode", jpeg.width, jpeg.height,
                                    jpeg.isGray ? "/DeviceGray" : "/DeviceRGB"));
}

std::string PdfFile::addOpacity(double opacity) {
    // Named by the value, so that each value is there once.
    const std::string name = "/a" + std::to_string(std::lround(opacity * 10000));
    if (!graphicsStates_.hasKey(name)) {
        QPDFObjectHandle state = QPDFObjectHandle::newDictionary();
        state.replaceKey("/CA", number(opacity));
        state.replaceKey("/ca", number(opacity));
        graphicsStates_.replaceKey(name, state);
    }
    return name;
}

std::vector<std::uint8_t> PdfFile::write(std::vector<PackedBytes> content) {
    std::size_t size = 0;
    QPDFObjectHandle contents = QPDFObjectHandle::newArray();
    for (PackedBytes& piece : content) {
        kept_.push_back(std::move(piece));
        contents.appendItem(addStream(kept_.back(), "/FlateDecode"));
    }
    for (const PackedBytes& bytes : kept_)
        size += bytes.size();

    QPDFObjectHandle page = QPDFObjectHandle::parse(
        "<< /Type /Page /Resources << >> /Group << /S /Transparency /CS /DeviceRGB /I true >> >>");
    QPDFObjectHandle mediaBox = QPDFObjectHandle::newArray();
    for (const double side : {0.0, 0.0, page_.width, page_.height})
        mediaBox.appendItem(number(side));
    page.replaceKey("/MediaBox", mediaBox);
    page.replaceKey("/Contents", contents);
    page.getKey("/Resources").replaceKey("/ExtGState", graphicsStates_);
    page.getKey("/Resources").replaceKey("/XObject", images_);
    pdf_.addPage(pdf_.makeIndirectObject(page), false);

    ByteSink sink;
    constexpr std::size_t roomForObjects = 1 << 16;
    sink.reserve(size + roomForObjects);
    QPDFWriter writer(pdf_);
    writer.setOutputPipeline(&sink);
    writer.setMinimumPDFVersion("1.4");  // transparency
    writer.setStreamDataMode(qpdf_s_preserve);
    writer.setCompressStreams(false);
    writer.setDeterministicID(true);
    writer.write();
    return sink.take();
}

QPDFObjectHandle PdfFile::addStream(std::span<const std::uint8_t> bytes, const char* filter) {
    QPDFObjectHandle stream = QPDFObjectHandle::newStream(&pdf_);
    // qpdf only reads the bytes of a stream, and does not own them.
    auto* const data = const_cast<std::uint8_t*>(bytes.data());
    stream.replaceStreamData(std::make_shared<Buffer>(data, bytes.size()), name(filter),
                             QPDFObjectHandle::newNull());
    return stream;
}

QPDFObjectHandle PdfFile::addImageStream(std::span<const std::uint8_t> bytes, const char* filter,
                                         int width, int height, const char* colorSpace) {
    QPDFObjectHandle stream = addStream(bytes, filter);
    QPDFObjectHandle entries = stream.getDict();
    entries.replaceKey("/Type", name("/XObject"));
    entries.replaceKey("/Subtype", name("/Image"));
    entries.replaceKey("/Width", QPDFObjectHandle::newInteger(width));
    entries.replaceKey("/Height", QPDFObjectHandle::newInteger(height));
    entries.replaceKey("/ColorSpace", name(colorSpace));
    entries.replaceKey("/BitsPerComponent", QPDFObjectHandle::newInteger(8));
    entries.replaceKey("/Interpolate", QPDFObjectHandle::newBool(true));
    return stream;
}

std::string PdfFile::nameImage(const QPDFObjectHandle& image) {
    const std::string name = "/i" + std::to_string(imageCount_++);
    images_.replaceKey(name, image);
    return name;
}

}  // namespace marlevo
