#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace marlevo {

/// A text in blocks, so that appending and joining texts copies none of the characters before.
class TextBlocks {
public:
    static constexpr std::size_t blockSize = std::size_t{1} << 18;

    /// Room for `length` more characters, at most blockSize, valid until the next call. After
    /// writing there, advanceTo() adds the characters up to its argument to the text.
    char* room(std::size_t length) {
        if (blocks_.empty() || blockSize - blocks_.back().size < length)
            blocks_.push_back({std::make_unique_for_overwrite<char[]>(blockSize), 0});
        return blocks_.back().text.get() + blocks_.back().size;
    }

    void advanceTo(const char* end) {
        Block& block = blocks_.back();
        block.size = static_cast<std::size_t>(end - block.text.get());
    }

    void append(std::string_view text) {
        while (!text.empty()) {
            char* const to = room(1);
            const std::size_t count = std::min(text.size(), blockSize - blocks_.back().size);
            std::memcpy(to, text.data(), count);
            advanceTo(to + count);
            text.remove_prefix(count);
        }
    }

    void append(TextBlocks&& other) {
        std::move(other.blocks_.begin(), other.blocks_.end(), std::back_inserter(blocks_));
        other.blocks_.clear();
    }

    std::size_t size() const {
        std::size_t sum = 0;
        for (const Block& block : blocks_)
            sum += block.size;
        return sum;
    }

    /// The text in pieces, in order.
    std::vector<std::string_view> pieces() const {
        std::vector<std::string_view> pieces;
        for (const Block& block : blocks_)
            pieces.emplace_back(block.text.get(), block.size);
        return pieces;
    }

    /// The text in one piece, as a copy.
    std::string joined() const {
        std::string text;
        text.reserve(size());
        for (const Block& block : blocks_)
            text.append(block.text.get(), block.size);
        return text;
    }

private:
    struct Block {
        std::unique_ptr<char[]> text;
        std::size_t size;
    };
    std::vector<Block> blocks_;
};

}  // namespace marlevo
