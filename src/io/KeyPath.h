#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace marlevo {

/// The place of a value in a JSON document, such as "layers[3].strokes[17].points[4]". Built from
/// the innermost step outwards: each function that passes an error on prepends its own step.
class KeyPath {
public:
    void prependKey(std::string_view key) { prepend(std::string(key)); }

    void prependIndex(std::size_t index) {
        std::string step = std::to_string(index);
        step.insert(step.begin(), '[');
        step.push_back(']');
        prepend(std::move(step));
    }

    /// Empty for the root.
    const std::string& text() const { return text_; }

private:
    void prepend(std::string step) {
        if (!text_.empty() && text_.front() != '[') step.push_back('.');
        text_.insert(0, step);
    }

    std::string text_;
};

}  // namespace marlevo
