#include "corvel/presets/Encoding.h"

#include "corvel/console/Printable.h"
#include "corvel/console/Text.h"

namespace Tessitor::Tool {

namespace {

unsigned codeOf(char byte) {
    return static_cast<unsigned char>(byte);
}

/// Removes the character at the start of the text.
/// @return its code point; nothing if the bytes are not UTF-8: overlong, a surrogate, past U+10FFFF
///         or cut off.
std::optional<unsigned> takeCharacter(std::string_view &text) {
    const unsigned first = codeOf(text.front());
    text.remove_prefix(1);
    if (first < 0x80)
        return first;
    if (first < 0xC2 || first > 0xF4)
        return std::nullopt;
    const std::size_t more = first < 0xE0 ? 1 : first < 0xF0 ? 2 : 3;
    if (text.size() < more)
        return std::nullopt;
    unsigned character = first & (0x3Fu >> more);
    for (const char byte : text.substr(0, more)) {
        if ((codeOf(byte) & 0xC0u) != 0x80)
            return std::nullopt;
        character = character << 6 | (codeOf(byte) & 0x3Fu);
    }
    text.remove_prefix(more);
    constexpr unsigned smallest[] = {0, 0x80, 0x800, 0x10000};
    const bool isSurrogate = character >= 0xD800 && character < 0xE000;
    if (character < smallest[more] || isSurrogate || character > 0x10FFFF)
        return std::nullopt;
    return character;
}

}  // namespace

bool isUtf8(std::string_view bytes) {
    while (!bytes.empty())
        if (!takeCharacter(bytes))
            return false;
    return true;
}

std::string utf8FromLatin1(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) {
        if (codeOf(byte) >= 0x80)
            text += static_cast<char>(0xC0u | codeOf(byte) >> 6);
        text += codeOf(byte) < 0x80 ? byte : static_cast<char>(0x80u | (codeOf(byte) & 0x3Fu));
    }
    return text;
}

std::optional<std::string> latin1FromUtf8(std::string_view text) {
    std::string bytes;
    while (!text.empty()) {
        const std::optional<unsigned> character = takeCharacter(text);
        if (!character || *character > 0xFF)
            return std::nullopt;
        bytes += static_cast<char>(*character);
    }
    return bytes;
}

std::string shortQuote(std::string_view text) {
    constexpr std::size_t longest = 40;
    return inQuotes(printable(text.substr(0, longest)) + (text.size() > longest ? "..." : ""));
}

}  // namespace Tessitor::Tool
