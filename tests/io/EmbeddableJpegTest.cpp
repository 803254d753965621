#include "io/EmbeddableJpeg.h"

#include "tests/support/SmallJpeg.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string_view>

using namespace marlevo;

namespace {

using Primaries = std::array<std::array<double, 3>, 3>;

constexpr Primaries sRGB{
    {{0.4361, 0.2225, 0.0139}, {0.3851, 0.7169, 0.0971}, {0.1431, 0.0606, 0.7141}}};
constexpr Primaries displayP3{
    {{0.5151, 0.2412, -0.0011}, {0.2920, 0.6922, 0.0419}, {0.1571, 0.0666, 0.7841}}};

void appendWord(std::vector<std::uint8_t>& bytes, std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<std::uint8_t>(value >> shift));
}

void appendText(std::vector<std::uint8_t>& bytes, std::string_view text) {
    for (const char character : text)
        bytes.push_back(static_cast<std::uint8_t>(character));
}

/// A curve x^gamma in the form of a profile.
std::vector<std::uint8_t> gammaCurve(double gamma) {
    std::vector<std::uint8_t> curve;
    appendText(curve, std::string_view("curv\0\0\0\0\0\0\0\1", 12));
    appendWord(curve, static_cast<std::uint32_t>(std::lround(gamma * 256)) << 16);
    return curve;
}

/// The curve of sRGB, with its straight part near black.
std::vector<std::uint8_t> sRGBCurve() {
    std::vector<std::uint8_t> curve;
    appendText(curve, std::string_view("para\0\0\0\0\0\3\0\0", 12));
    for (const double value : {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045})
        appendWord(curve, static_cast<std::uint32_t>(std::lround(value * 65536)));
    return curve;
}

/// The file with an ICC profile of these primaries and one curve for all of them.
std::vector<std::uint8_t> jpegWithProfile(const Primaries& primaries,
                                          const std::vector<std::uint8_t>& curve) {
    std::vector<std::uint8_t> profile(128);
    constexpr std::string_view kind = "RGB XYZ ";
    std::copy(kind.begin(), kind.end(), profile.begin() + 16);
    constexpr std::uint32_t data = 128 + 4 + 6 * 12;
    appendWord(profile, 6);
    std::uint32_t offset = data;
    for (const std::string_view tag : {"rXYZ", "gXYZ", "bXYZ"}) {
        appendText(profile, tag);
        appendWord(profile, offset);
        appendWord(profile, 20);
        offset += 20;
    }
    for (const std::string_view tag : {"rTRC", "gTRC", "bTRC"}) {
        appendText(profile, tag);
        appendWord(profile, offset);
        appendWord(profile, static_cast<std::uint32_t>(curve.size()));
    }
    for (const auto& xyz : primaries) {
        appendText(profile, std::string_view("XYZ \0\0\0\0", 8));
        for (const double value : xyz)
            appendWord(profile, static_cast<std::uint32_t>(std::lround(value * 65536)));
    }
    profile.insert(profile.end(), curve.begin(), curve.end());

    std::vector<std::uint8_t> segment;
    appendText(segment, std::string_view("ICC_PROFILE\0\1\1", 14));
    segment.insert(segment.end(), profile.begin(), profile.end());
    return jpegWithSegment(0xE2, std::move(segment));
}

std::vector<std::uint8_t> withByte(std::size_t at, std::uint8_t value) {
    std::vector<std::uint8_t> file(smallJpeg.begin(), smallJpeg.end());
    file[at] = value;
    return file;
}

// Offset of the small file's frame header: marker, length, precision, height, width, components.
constexpr std::size_t frame = 158;

TEST(EmbeddableJpeg, ReadsSizeAndOrientation) {
    const auto plain = EmbeddableJpeg::recognise(smallJpeg);
    ASSERT_TRUE(plain);
    EXPECT_EQ(plain->width, 32);
    EXPECT_EQ(plain->height, 16);
    EXPECT_EQ(plain->orientation, 1);
    EXPECT_EQ(EmbeddableJpeg::recognise(jpegWithOrientation(6))->orientation, 6);
    EXPECT_EQ(EmbeddableJpeg::recognise(jpegWithOrientation(9))->orientation, 1);
}

TEST(EmbeddableJpeg, RefusesWhatReadersShowInOtherColors) {
    ASSERT_EQ(smallJpeg[frame + 1], 0xC0);
    EXPECT_TRUE(EmbeddableJpeg::recognise(withByte(frame + 1, 0xC2))) << "progressive";
    EXPECT_FALSE(EmbeddableJpeg::recognise(withByte(frame + 1, 0xC9))) << "arithmetic code";
    EXPECT_FALSE(EmbeddableJpeg::recognise(withByte(frame + 4, 12))) << "12 bits";
    EXPECT_FALSE(EmbeddableJpeg::recognise(withByte(frame + 9, 4))) << "CMYK";
    EXPECT_FALSE(EmbeddableJpeg::recognise(withByte(frame + 10, 'R'))) << "RGB by name";

    const auto adobe = [](std::uint8_t transform) {
        return jpegWithSegment(0xEE, {'A', 'd', 'o', 'b', 'e', 0, 100, 0, 0, 0, 0, transform});
    };
    EXPECT_TRUE(EmbeddableJpeg::recognise(adobe(1)));
    EXPECT_FALSE(EmbeddableJpeg::recognise(adobe(0))) << "RGB by the program that wrote it";
}

TEST(EmbeddableJpeg, RefusesProfilesOtherThanSRGB) {
    EXPECT_TRUE(EmbeddableJpeg::recognise(jpegWithProfile(sRGB, sRGBCurve())));
    EXPECT_FALSE(EmbeddableJpeg::recognise(jpegWithProfile(sRGB, gammaCurve(2.2))));
    EXPECT_FALSE(EmbeddableJpeg::recognise(jpegWithProfile(displayP3, sRGBCurve())));
}

TEST(EmbeddableJpeg, RefusesFilesCutShortAnywhere) {
    for (const auto& file : {jpegWithOrientation(6), jpegWithProfile(sRGB, sRGBCurve())}) {
        for (std::size_t size = 0; size < file.size(); ++size) {
            // A copy, so that the address sanitizer reports reads beyond its end.
            const std::vector<std::uint8_t> cut(file.begin(), file.begin() + size);
            EXPECT_FALSE(EmbeddableJpeg::recognise(cut)) << size;
        }
    }
}

}  // namespace
