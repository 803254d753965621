#include "platform/qt/KeyboardLayouts.h"

#include <QGuiApplication>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace marlevo {

namespace {

constexpr std::size_t levels = 2;  // without and with Shift

// The keys from Q to M on a US keyboard, which make letters in every layout that has any.
constexpr std::uint32_t firstLetter = 24;
constexpr std::uint32_t lastLetter = 58;

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

bool isLetter(char character) { return character >= 'A' && character <= 'Z'; }

}  // namespace

KeyboardLayouts::KeyboardLayouts() {
    const auto* const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr) return;
    xcb_connection_t* const server = x11->connection();
    const xcb_setup_t& setup = *xcb_get_setup(server);
    const auto question = xcb_get_keyboard_mapping(
        server, setup.min_keycode, std::uint8_t(setup.max_keycode - setup.min_keycode + 1));
    const std::unique_ptr<xcb_get_keyboard_mapping_reply_t, Free> reply(
        xcb_get_keyboard_mapping_reply(server, question, nullptr));
    if (!reply) return;
    firstCode_ = setup.min_keycode;
    symbolsPerKey_ = reply->keysyms_per_keycode;
    const xcb_keysym_t* const symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
    symbols_.assign(symbols, symbols + xcb_get_keyboard_mapping_keysyms_length(reply.get()));
    for (std::size_t layout = 0; layout < count; ++layout)
        for (std::uint32_t code = firstLetter; code <= lastLetter; ++code)
            if (isLetter(characterOf(code, layout))) isLatin_[layout] = true;
}

std::optional<bool> KeyboardLayouts::isLatin(std::uint32_t layout) const {
    return symbols_.empty() || layout >= count ? std::nullopt : std::optional(isLatin_[layout]);
}

char KeyboardLayouts::latinCharacter(std::uint32_t code) const {
    for (std::size_t layout = 0; layout < count; ++layout)
        if (isLatin_[layout]) return characterOf(code, layout);
    return 0;
}

/// 0 for characters outside ASCII.
char KeyboardLayouts::characterOf(std::uint32_t code, std::size_t layout) const {
    const std::size_t at = (code - firstCode_) * symbolsPerKey_ + layout * levels;
    if (code < firstCode_ || layout * levels >= symbolsPerKey_ || at >= symbols_.size()) return 0;
    const std::uint32_t symbol = symbols_[at];
    if (symbol <= 0x20 || symbol > 0x7e) return 0;
    return char(symbol >= 'a' && symbol <= 'z' ? symbol - 'a' + 'A' : symbol);
}

}  // namespace marlevo
