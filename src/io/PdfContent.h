#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace marlevo {

/// The bytes of a PDF stream, packed by deflate as /FlateDecode expects them.
using PackedBytes = std::vector<std::uint8_t>;

/// Packs bytes that nearly do not repeat, such as numbers: four times as fast as `small`.
enum class Packing : unsigned char { fast, small };

/// Packs the bytes in the zlib format (RFC 1950). Throws std::bad_alloc.
PackedBytes packForPdf(std::string_view bytes, Packing packing);

/// The operators of a page's content, ISO 32000-1, 7.8.2. The text is packed piece by piece while
/// it is written, on all cores, so that it is never whole in memory. Each operation may throw
/// std::bad_alloc.
class PdfContent {
public:
    /// Coordinates are kept to 1/1000 of a point.
    static constexpr int coordinateDecimals = 3;
    /// Colours, widths and opacities are kept to 1/10000.
    static constexpr int fineDecimals = 4;

    PdfContent() { text_.reserve(pieceSize + slack); }

    /// Appends an operator behind its operands, which are coordinates.
    void add(std::initializer_list<double> operands, std::string_view name) {
        addRounded<coordinateDecimals>(operands, name);
    }
    /// The same for operands that are no coordinates.
    void addFine(std::initializer_list<double> operands, std::string_view name) {
        addRounded<fineDecimals>(operands, name);
    }
    /// Appends text as it is; for operands that are names.
    void add(std::string_view text);

    /// The streams that make up the content, in order. Leaves the content empty.
    std::vector<PackedBytes> finish();

private:
    template <int decimals>
    void addRounded(std::initializer_list<double> operands, std::string_view name);
    void endPiece();
    void pack();

    static constexpr std::size_t pieceSize = 1 << 20;
    static constexpr std::size_t slack = 256;  ///< more than one operator with its operands
    static constexpr std::size_t piecesAtOnce = 4;

    std::string text_;                 ///< the piece that is being written
    std::vector<std::string> pieces_;  ///< whole, not yet packed
    std::vector<PackedBytes> packed_;
};

}  // namespace marlevo
