#pragma once

#include "io/Base64.h"

#include <cstdint>
#include <vector>

namespace marlevo {

/// A JPEG file of 32 × 16 pixels: red upper left, blue upper right, green lower half.
inline const std::vector<std::uint8_t> smallJpeg =
    decodeBase64(
        "/9j/4AAQSkZJRgABAQAAAQABAAD/2wBDAA0JCgsKCA0LCgsODg0PEyAVExISEyccHhcgLikxMC4pLSwzOko+MzZG"
        "NywtQFdBRkxOUlNSMj5aYVpQYEpRUk//2wBDAQ4ODhMREyYVFSZPNS01T09PT09PT09PT09PT09PT09PT09PT09P"
        "T09PT09PT09PT09PT09PT09PT09PT09PT0//wAARCAAQACADAREAAhEBAxEB/8QAFQABAQAAAAAAAAAAAAAAAAAA"
        "AAX/xAAUEAEAAAAAAAAAAAAAAAAAAAAA/8QAFwEBAAMAAAAAAAAAAAAAAAAAAAUGB//EABQRAQAAAAAAAAAAAAAA"
        "AAAAAAD/2gAMAwEAAhEDEQA/AJqJXMBOaEzwBeUFFgAAP//Z")
        .value();

/// The file with a segment inserted behind its first two. `segment` is the part after the length.
inline std::vector<std::uint8_t> jpegWithSegment(std::uint8_t marker,
                                                 std::vector<std::uint8_t> segment) {
    constexpr std::size_t place = 20;
    const std::size_t length = segment.size() + 2;
    segment.insert(segment.begin(), {0xFF, marker, static_cast<std::uint8_t>(length >> 8),
                                     static_cast<std::uint8_t>(length & 0xFF)});
    std::vector<std::uint8_t> file = smallJpeg;
    file.insert(file.begin() + place, segment.begin(), segment.end());
    return file;
}

/// The file with Exif data for an orientation, 1 to 8.
inline std::vector<std::uint8_t> jpegWithOrientation(std::uint8_t orientation) {
    return jpegWithSegment(0xE1, {'E', 'x', 'i', 'f',         0, 0,    'M',  'M', 0, 42, 0,
                                  0,   0,   8,   0,           1, 0x01, 0x12, 0,   3, 0,  0,
                                  0,   1,   0,   orientation, 0, 0,    0,    0,   0, 0});
}

}  // namespace marlevo
