#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace marlevo {

/// Builds a PDF file (ISO 32000-1) in memory out of numbered objects: the bodies one after another,
/// then the table of their places. Carries no date and no name, so equal objects make equal files.
class PdfFile {
public:
    /// An object's number, from 1.
    using Object = int;

    PdfFile();

    /// A number for an object that is added later; others may refer to it before.
    Object reserve();

    /// Adds the object, once.
    void add(Object object, std::string_view body);

    /// Adds a new stream object: the dictionary's entries (without its length) and the data.
    Object addStream(std::string_view entries, std::span<const std::uint8_t> data);

    /// The file, whose root is the given catalog. Every reserved object must have been added.
    std::vector<std::uint8_t> finish(Object catalog);

    /// "7 0 R", the way objects refer to others.
    static std::string reference(Object object);

private:
    void begin(Object object);
    void append(std::string_view text);

    std::vector<std::uint8_t> bytes_;
    std::vector<std::size_t> offsets_;  ///< by object number, from 1
};

/// Adds the number and a space, in at most three decimals. `value` must be at most 10^12 from 0.
void appendPdfNumber(std::string& text, double value);

/// Adds the number and a space, in as many decimals as give back the very same number. `value` must
/// be finite.
void appendExactPdfNumber(std::string& text, double value);

}  // namespace marlevo
