#include "io/Base64.h"

#include <gtest/gtest.h>

#include <string>

using namespace marlevo;

namespace {

std::vector<std::uint8_t> bytesOf(std::string_view text) { return {text.begin(), text.end()}; }

std::string encoded(std::span<const std::uint8_t> bytes) {
    std::string text(base64Length(bytes.size()), '\0');
    EXPECT_EQ(encodeBase64(bytes, text.data()), text.data() + text.size());
    return text;
}

TEST(Base64, agreesWithTheStandardsVectors) {
    const std::pair<const char*, const char*> vectors[] = {
        {"", ""},
        {"f", "Zg=="},
        {"fo", "Zm8="},
        {"foo", "Zm9v"},
        {"foob", "Zm9vYg=="},
        {"fooba", "Zm9vYmE="},
        {"foobar", "Zm9vYmFy"},
    };
    for (const auto& [bytes, text] : vectors) {
        EXPECT_EQ(encoded(bytesOf(bytes)), text);
        EXPECT_EQ(decodeBase64(text), bytesOf(bytes));
    }
    EXPECT_EQ(decodeBase64("+/+/"), (std::vector<std::uint8_t>{0xFB, 0xFF, 0xBF}));
}

TEST(Base64, refusesAllOtherTexts) {
    for (const char* text :
         {"Z", "Zg", "Zg=", "Zg===", "=", "====", "Z===", "Zg==Zg==", "Zm=v", "=m9v", "Zm9v\n",
          "Zm 9", "Zm9v====", "Zm9-", "Zm9_", "Zh==", "Zm9=", "Zm\xC3\xA9", "Zg=A"})
        EXPECT_FALSE(decodeBase64(text)) << text;
    EXPECT_FALSE(decodeBase64(std::string_view("Zm9\0", 4)));
}

}  // namespace
