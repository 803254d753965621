#include "io/PdfContent.h"

#include "io/FixedDecimal.h"
#include "platform/ParallelFor.h"

#include <libdeflate.h>

#include <memory>
#include <new>
#include <utility>

namespace marlevo {

PackedBytes packForPdf(std::string_view bytes, Packing packing) {
    const std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> compressor(
        libdeflate_alloc_compressor(packing == Packing::fast ? 1 : 6), &libdeflate_free_compressor);
    if (!compressor) throw std::bad_alloc();
    PackedBytes packed(libdeflate_zlib_compress_bound(compressor.get(), bytes.size()));
    packed.resize(libdeflate_zlib_compress(compressor.get(), bytes.data(), bytes.size(),
                                           packed.data(), packed.size()));
    packed.shrink_to_fit();
    return packed;
}

template <int decimals>
void PdfContent::addRounded(std::initializer_list<double> operands, std::string_view name) {
    char line[slack];
    char* end = line;
    for (const double operand : operands) {
        end = writeFixed<decimals>(operand, end);
        *end++ = ' ';
    }
    text_.append(line, end);
    add(name);
}

template void PdfContent::addRounded<PdfContent::coordinateDecimals>(std::initializer_list<double>,
                                                                     std::string_view);
template void PdfContent::addRounded<PdfContent::fineDecimals>(std::initializer_list<double>,
                                                               std::string_view);

void PdfContent::add(std::string_view text) {
    text_.append(text);
    text_.push_back('\n');
    // Readers join the streams with white space in between, so a piece may end in mid-path.
    if (text_.size() >= pieceSize) endPiece();
}

void PdfContent::endPiece() {
    std::string next;
    next.reserve(pieceSize + slack);
    pieces_.push_back(std::exchange(text_, std::move(next)));
    if (pieces_.size() == piecesAtOnce) pack();
}

void PdfContent::pack() {
    const std::size_t done = packed_.size();
    packed_.resize(done + pieces_.size());
    parallelFor(pieces_.size(),
                [&](std::size_t i) { packed_[done + i] = packForPdf(pieces_[i], Packing::fast); });
    pieces_.clear();
}

std::vector<PackedBytes> PdfContent::finish() {
    pieces_.push_back(std::exchange(text_, {}));
    pack();
    return std::exchange(packed_, {});
}

}  // namespace marlevo
