#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace marlevo {

/// Compresses bytes as they come, into the zlib format (RFC 1950).
class DeflateStream {
public:
    /// What the bytes are like; decides how they are compressed.
    enum class Content : unsigned char {
        numbers,  ///< text of ever new digits, where looking for repetitions is lost time
        pixels,
    };

    /// Throws std::bad_alloc when there is no memory, as every member does.
    explicit DeflateStream(Content content);
    ~DeflateStream();
    DeflateStream(const DeflateStream&) = delete;
    DeflateStream& operator=(const DeflateStream&) = delete;

    void append(std::span<const std::uint8_t> bytes);

    /// The whole stream, compressed. Nothing can be appended any more.
    std::vector<std::uint8_t> finish();

private:
    struct Compressor;

    void run(std::span<const std::uint8_t> bytes, int flush);

    std::unique_ptr<Compressor> compressor_;
    std::vector<std::uint8_t> compressed_;
};

}  // namespace marlevo
