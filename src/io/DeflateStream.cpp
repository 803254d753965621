#include "io/DeflateStream.h"

#include <algorithm>
#include <array>
#include <limits>
#include <new>
#include <zlib.h>

namespace marlevo {

struct DeflateStream::Compressor {
    explicit Compressor(Content content) {
        // Huffman coding alone makes digits as small as the fastest search for repetitions does, in
        // two thirds of the time.
        const bool isNumbers = content == Content::numbers;
        constexpr int windowBits = 15;
        constexpr int memoryLevel = 8;
        if (deflateInit2(&stream, isNumbers ? 1 : 4, Z_DEFLATED, windowBits, memoryLevel,
                         isNumbers ? Z_HUFFMAN_ONLY : Z_FILTERED) != Z_OK) {
            throw std::bad_alloc();
        }
    }
    ~Compressor() { deflateEnd(&stream); }
    Compressor(const Compressor&) = delete;
    Compressor& operator=(const Compressor&) = delete;

    z_stream stream{};
};

DeflateStream::DeflateStream(Content content)
    : compressor_(std::make_unique<Compressor>(content)) {}

DeflateStream::~DeflateStream() = default;

void DeflateStream::append(std::span<const std::uint8_t> bytes) {
    constexpr std::size_t most = std::numeric_limits<uInt>::max();
    while (!bytes.empty()) {
        const std::size_t count = std::min(bytes.size(), most);
        run(bytes.first(count), Z_NO_FLUSH);
        bytes = bytes.subspan(count);
    }
}

std::vector<std::uint8_t> DeflateStream::finish() {
    run({}, Z_FINISH);
    return std::move(compressed_);
}

void DeflateStream::run(std::span<const std::uint8_t> bytes, int flush) {
    std::array<std::uint8_t, std::size_t{1} << 15> chunk{};
    z_stream& stream = compressor_->stream;
    // zlib does not write through its input pointer.
    stream.next_in = const_cast<Bytef*>(bytes.data());
    stream.avail_in = static_cast<uInt>(bytes.size());
    do {
        stream.next_out = chunk.data();
        stream.avail_out = static_cast<uInt>(chunk.size());
        deflate(&stream, flush);
        compressed_.insert(compressed_.end(), chunk.data(), stream.next_out);
    } while (stream.avail_out == 0);
}

}  // namespace marlevo
