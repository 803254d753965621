#pragma once

#include "io/TextBlocks.h"
#include "model/PointList.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace marlevo {

/// Writes JSON text value by value, indented by two spaces a level. The caller must write brackets
/// and commas where JSON has them.
class JsonText {
public:
    /// Text that is JSON already.
    void literal(std::string_view text) { text_.append(text); }

    /// A line break and the indentation of `depth` levels.
    void newLine(std::size_t depth);

    /// A member on a new line, up to its value.
    void member(std::string_view key, std::size_t depth);

    void value(bool flag) { text_.append(flag ? "true" : "false"); }
    void value(std::int64_t number);
    void value(double number);
    void value(std::string_view string);  ///< UTF-8
    void value(const std::string& string) { value(std::string_view(string)); }
    /// An array x0, y0, x1, y1, … on one line.
    void value(const PointList& points);

    /// Base64 without quotes, for the inside of a string. The text must fit into one block of text
    /// (TextBlocks::blockSize). A long string takes several calls, each but the last one with a
    /// multiple of three bytes.
    void base64(std::span<const std::uint8_t> bytes);

    /// False if a number was written that is not finite: the text is then not JSON.
    bool isFinite() const { return isFinite_; }

    TextBlocks take() { return std::move(text_); }

private:
    char* write(double number, char* to);
    void escape(char c);

    TextBlocks text_;
    bool isFinite_ = true;
};

}  // namespace marlevo
