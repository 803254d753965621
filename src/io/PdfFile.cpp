#include "io/PdfFile.h"

#include <array>
#include <charconv>
#include <cstdio>

namespace marlevo {

// The second line's bytes beyond ASCII tell transfer programs that the file is not text.
PdfFile::PdfFile() { append("%PDF-1.4\n%\xE2\xE3\xCF\xD3\n"); }

PdfFile::Object PdfFile::reserve() {
    offsets_.push_back(0);
    return static_cast<Object>(offsets_.size());
}

void PdfFile::add(Object object, std::string_view body) {
    begin(object);
    append(body);
    append("\nendobj\n");
}

PdfFile::Object PdfFile::addStream(std::string_view entries, std::span<const std::uint8_t> data) {
    const Object object = reserve();
    begin(object);
    append("<< ");
    append(entries);
    append(" /Length " + std::to_string(data.size()) + " >>\nstream\n");
    bytes_.insert(bytes_.end(), data.begin(), data.end());
    append("\nendstream\nendobj\n");
    return object;
}

std::vector<std::uint8_t> PdfFile::finish(Object catalog) {
    const std::size_t tableOffset = bytes_.size();
    const std::string count = std::to_string(offsets_.size() + 1);
    append("xref\n0 " + count + "\n0000000000 65535 f \n");
    for (const std::size_t offset : offsets_) {
        std::array<char, 32> line{};
        std::snprintf(line.data(), line.size(), "%010zu 00000 n \n", offset);
        append(line.data());
    }
    append("trailer\n<< /Size " + count + " /Root " + reference(catalog) + " >>\nstartxref\n" +
           std::to_string(tableOffset) + "\n%%EOF\n");
    return std::move(bytes_);
}

std::string PdfFile::reference(Object object) { return std::to_string(object) + " 0 R"; }

void PdfFile::begin(Object object) {
    offsets_[static_cast<std::size_t>(object) - 1] = bytes_.size();
    append(std::to_string(object) + " 0 obj\n");
}

void PdfFile::append(std::string_view text) {
    bytes_.insert(bytes_.end(), text.begin(), text.end());
}

void appendPdfNumber(std::string& text, double value) {
    std::array<char, 32> digits{};
    char* end = digits.data();
    auto thousandths = static_cast<std::int64_t>(value * 1000 + (value < 0 ? -0.5 : 0.5));
    if (thousandths < 0) {
        *end++ = '-';
        thousandths = -thousandths;
    }
    end = std::to_chars(end, digits.data() + digits.size(), thousandths / 1000).ptr;
    int fraction = static_cast<int>(thousandths % 1000);
    if (fraction != 0) {
        *end++ = '.';
        for (int place = 100; fraction != 0; fraction %= place, place /= 10)
            *end++ = static_cast<char>('0' + fraction / place);
    }
    *end++ = ' ';
    text.append(digits.data(), end);
}

void appendExactPdfNumber(std::string& text, double value) {
    // The longest are the smallest: 324 zeros and 17 digits.
    std::array<char, 400> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                      std::chars_format::fixed);
    text.append(digits.data(), result.ptr);
    text += ' ';
}

}  // namespace marlevo
