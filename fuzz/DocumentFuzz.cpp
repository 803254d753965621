// Checks for each text that the document reader accepts: the plain checker accepts it as JSON, and
// the document is the same after writing and reading.

#include "io/DocumentReader.h"
#include "io/DocumentWriter.h"
#include "io/JsonSyntax.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>
#include <vector>

using namespace marlevo;

namespace {

/// The tokens of a JSON text: a string, a bracket, a comma, a colon, or a run of other characters.
/// White space belongs to the token before it.
std::vector<std::string_view> tokensOf(std::string_view text) {
    constexpr std::string_view single = "{}[],:";
    std::vector<std::string_view> tokens;
    while (!text.empty()) {
        std::size_t length = 1;
        if (text.front() == '"') {
            while (length < text.size() && text[length] != '"')
                length += text[length] == '\\' ? 2 : 1;
            length = std::min(length + 1, text.size());
        } else if (single.find(text.front()) == single.npos) {
            length = std::min(text.find_first_of("{}[],:\"", 1), text.size());
        }
        while (length < text.size() && (text[length] == ' ' || text[length] == '\n'))
            ++length;
        tokens.push_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return tokens;
}

}  // namespace

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

/// Changes half of the inputs token by token, the others byte by byte.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned seed) {
    std::minstd_rand random(seed);
    const std::string text(data, data + size);
    std::vector<std::string_view> tokens = tokensOf(text);
    if (random() % 2 == 0 || tokens.empty()) return LLVMFuzzerMutate(data, size, maxSize);

    constexpr std::array<std::string_view, 9> inserted{"{", "}", "[",     "]",   ",",
                                                       ":", "1", "\"x\"", "null"};
    const auto place = [&] {
        return tokens.begin() + static_cast<std::ptrdiff_t>(random() % tokens.size());
    };
    for (auto changes = 1 + random() % 3; changes > 0 && !tokens.empty(); --changes) {
        switch (random() % 4) {
        case 0:
            tokens.erase(place());
            break;
        case 1: {
            const std::string_view doubled = *place();
            tokens.insert(place(), doubled);
            break;
        }
        case 2:
            std::iter_swap(place(), place());
            break;
        default: {
            auto at = place();
            for (auto count = 1 + random() % 3; count > 0; --count)
                at = tokens.insert(at, inserted[random() % inserted.size()]);
        }
        }
    }
    std::string changed;
    for (const std::string_view token : tokens)
        changed += token;
    changed.resize(std::min(changed.size(), maxSize));
    std::ranges::copy(changed, data);
    return changed.size();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const PaddedBytes contents(std::span(data, size));
    const auto document = readDocumentData(contents);
    if (!document) return 0;
    const bool hasMark = contents.text().starts_with("\xEF\xBB\xBF");
    if (JsonSyntax::findFault(contents.text().substr(hasMark ? 3 : 0))) std::abort();
    const std::string text = writeDocumentData(*document)->joined();
    const auto copy = readDocumentData(PaddedBytes(text));
    if (!copy || !(*copy == *document)) std::abort();
    if (writeDocumentData(*copy)->joined() != text) std::abort();
    return 0;
}
