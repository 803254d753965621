#include "io/EmbeddableJpeg.h"

#include "io/ByteReader.h"
#include "io/ColorProfile.h"

#include <string_view>

namespace marlevo {

namespace {

// Marker codes of ISO 10918-1; each follows a byte of 255.
enum Marker : std::uint8_t {
    sof0 = 0xC0,  ///< frames: sequential baseline, sequential, progressive, …
    sof2 = 0xC2,
    dht = 0xC4,
    jpg = 0xC8,
    dac = 0xCC,
    sof15 = 0xCF,
    rst0 = 0xD0,
    rst7 = 0xD7,
    soi = 0xD8,
    eoi = 0xD9,
    sos = 0xDA,
    dqt = 0xDB,
    dri = 0xDD,
    app0 = 0xE0,
    app1 = 0xE1,
    app2 = 0xE2,
    app14 = 0xEE,
    app15 = 0xEF,
    comment = 0xFE,
};

constexpr std::string_view exifSignature{"Exif\0\0", 6};
constexpr std::string_view profileSignature{"ICC_PROFILE\0", 12};
constexpr std::string_view adobeSignature{"Adobe", 5};

/// The orientation in Exif data, which are a small TIFF file; 1 if they have none.
int orientationIn(const ByteReader& exif) {
    const bool isLittle = exif.hasText(0, "II");
    if (!isLittle && !exif.hasText(0, "MM")) return 1;
    const ByteReader tiff =
        exif.in(isLittle ? ByteReader::Order::littleEndian : ByteReader::Order::bigEndian);
    constexpr std::uint16_t orientationTag = 0x0112;
    constexpr std::size_t entrySize = 12;
    const std::size_t directory = tiff.word(4);
    const std::uint16_t count = tiff.half(directory);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t entry = directory + 2 + entrySize * i;
        if (tiff.half(entry) != orientationTag) continue;
        const int orientation = tiff.half(entry + 8);
        return orientation >= 1 && orientation <= 8 ? orientation : 1;
    }
    return 1;
}

/// Reads the segments of a file and decides whether the file is embeddable.
class Scanner {
public:
    explicit Scanner(std::span<const std::uint8_t> file) : file_(file) {}

    std::optional<EmbeddableJpeg> scan() {
        if (file_.half(0) != (0xFF00 | soi)) return std::nullopt;
        std::size_t at = 2;
        while (const auto marker = nextMarker(at)) {
            if (*marker == eoi) return result();
            const std::size_t length = file_.half(at);
            if (length < 2 || length > file_.size() - at) return std::nullopt;
            const ByteReader segment(file_.bytes().subspan(at + 2, length - 2));
            if (!take(*marker, segment)) return std::nullopt;
            at += length;
            if (*marker == sos) skipCodedData(at);
        }
        return std::nullopt;
    }

private:
    /// The code of the marker at `at`; advances `at` to the position behind it. Nothing if the
    /// bytes there are no marker.
    std::optional<std::uint8_t> nextMarker(std::size_t& at) const {
        if (file_.byte(at) != 0xFF) return std::nullopt;
        while (file_.byte(at) == 0xFF)
            ++at;
        if (at >= file_.size()) return std::nullopt;
        return file_.byte(at++);
    }

    /// In coded data a byte of 255 is followed by 0 or a restart marker.
    void skipCodedData(std::size_t& at) const {
        for (; at < file_.size(); ++at) {
            if (file_.byte(at) != 0xFF) continue;
            const std::uint8_t next = file_.byte(at + 1);
            if (next != 0 && !(next >= rst0 && next <= rst7)) return;
        }
    }

    /// False if the segment shows that the file is not embeddable.
    bool take(std::uint8_t marker, const ByteReader& segment) {
        switch (marker) {
        case dht:
        case dqt:
        case dri:
        case sos:
        case comment:
            return true;
        case app1:
            if (segment.hasText(0, exifSignature))
                orientation_ = orientationIn(segment.from(exifSignature.size()));
            return true;
        case app2:
            return !segment.hasText(0, profileSignature) || takeProfile(segment);
        case app14:
            return takeAdobe(segment);
        default:
            if (marker >= sof0 && marker <= sof2) return takeFrame(segment);
            return marker >= app0 && marker <= app15;
        }
    }

    bool takeFrame(const ByteReader& frame) {
        const int components = frame.byte(5);
        if (width_ != 0 || frame.byte(0) != 8 || (components != 1 && components != 3)) return false;
        height_ = frame.half(1);
        width_ = frame.half(3);
        isGray_ = components == 1;
        // Image programs read components named R, G and B as these colours, page readers do not.
        const bool namesRed = frame.byte(6) == 'R';
        return width_ > 0 && height_ > 0 && !namesRed;
    }

    bool takeProfile(const ByteReader& segment) {
        // A profile in several pieces is too large for one of sRGB.
        constexpr std::size_t numbering = 2;
        const bool isWhole = segment.byte(profileSignature.size() + 1) == 1;
        hasProfile_ = true;
        return isWhole && isSRGBProfile(segment.from(profileSignature.size() + numbering).bytes());
    }

    bool takeAdobe(const ByteReader& segment) {
        constexpr std::size_t transformAt = 11;
        constexpr std::uint8_t yCbCr = 1;
        if (!segment.hasText(0, adobeSignature)) return true;
        hasOtherColors_ = segment.byte(transformAt) != yCbCr;
        return true;
    }

    std::optional<EmbeddableJpeg> result() const {
        const bool isPlain = isGray_ ? !hasProfile_ : !hasOtherColors_;
        if (width_ == 0 || !isPlain) return std::nullopt;
        return EmbeddableJpeg{width_, height_, isGray_, orientation_};
    }

    ByteReader file_;
    int width_ = 0;
    int height_ = 0;
    bool isGray_ = false;
    bool hasProfile_ = false;
    bool hasOtherColors_ = false;
    int orientation_ = 1;
};

}  // namespace

std::optional<EmbeddableJpeg> EmbeddableJpeg::recognise(std::span<const std::uint8_t> file) {
    return Scanner(file).scan();
}

}  // namespace marlevo
