#include "platform/FileAddress.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace marlevo {

namespace {

bool equalIgnoringCase(std::string_view text, std::string_view lowerCase) {
    const auto lower = [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    };
    return std::ranges::equal(text, lowerCase, {}, lower);
}

/// A percent sign that does not begin an encoded byte stays one.
std::string percentDecoded(std::string_view text) {
    std::string decoded;
    while (!text.empty()) {
        const std::string_view digits = text.substr(1, 2);
        unsigned char byte = 0;
        const char* const end =
            std::from_chars(digits.data(), digits.data() + digits.size(), byte, 16).ptr;
        const bool isEncoded = text.front() == '%' && end == digits.data() + 2;
        decoded += isEncoded ? static_cast<char>(byte) : text.front();
        text.remove_prefix(isEncoded ? 3 : 1);
    }
    return decoded;
}

}  // namespace

std::optional<std::filesystem::path> pathOfFileAddress(std::string_view address) {
    constexpr std::string_view scheme = "file:";
    if (!equalIgnoringCase(address.substr(0, scheme.size()), scheme)) return std::nullopt;
    address.remove_prefix(scheme.size());
    if (address.starts_with("//")) {
        address.remove_prefix(2);
        const std::string_view machine = address.substr(0, address.find('/'));
        if (!machine.empty() && !equalIgnoringCase(machine, "localhost")) return std::nullopt;
        address.remove_prefix(machine.size());
    }
    const std::string path = percentDecoded(address.substr(0, address.find_first_of("?#")));
    if (!path.starts_with('/') || path.find('\0') != std::string::npos) return std::nullopt;
    return path;
}

}  // namespace marlevo
