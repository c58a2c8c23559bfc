#include "corvel/console/Printable.h"

#include <array>
#include <cstdio>

namespace Tessitor::Tool {

namespace {

bool isBetween(unsigned char byte, unsigned char first, unsigned char last) {
    return byte >= first && byte <= last;
}

// @return the length of the UTF-8 character at the start of the text; 0 if there is none.
std::size_t characterLength(std::string_view text) {
    const auto byte = [&](std::size_t i) {
        return i < text.size() ? static_cast<unsigned char>(text[i])
                               : static_cast<unsigned char>(0);
    };
    const unsigned char lead = byte(0);
    if (lead < 0x80)
        return 1;
    const std::size_t length = isBetween(lead, 0xC2, 0xDF)   ? 2
                               : isBetween(lead, 0xE0, 0xEF) ? 3
                               : isBetween(lead, 0xF0, 0xF4) ? 4
                                                             : 0;
    for (std::size_t i = 1; i < length; ++i)
        if (!isBetween(byte(i), 0x80, 0xBF))
            return 0;
    // Longer forms than necessary, halves of pairs, and numbers beyond the last character
    if ((lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xED && byte(1) > 0x9F) ||
        (lead == 0xF0 && byte(1) < 0x90) || (lead == 0xF4 && byte(1) > 0x8F))
        return 0;
    return length;
}

// The control characters from U+0080 to U+009F, which terminals obey
bool isUpperControl(std::string_view character) {
    return character.size() == 2 && character[0] == '\xC2' &&
           static_cast<unsigned char>(character[1]) < 0xA0;
}

bool isPlain(std::string_view character) {
    if (character.size() == 1)
        return isBetween(static_cast<unsigned char>(character[0]), 0x20, 0x7E);
    return !isUpperControl(character);
}

std::string escaped(char byte) {
    switch (byte) {
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        std::array<char, 8> text{};
        std::snprintf(text.data(), text.size(), "\\x%02X", static_cast<unsigned char>(byte));
        return text.data();
    }
}

}  // namespace

std::string printable(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const std::size_t length = characterLength(text);
        const std::string_view character = text.substr(0, length == 0 ? 1 : length);
        if (length != 0 && isPlain(character)) {
            result += character;
        } else {
            for (const char byte : character)
                result += escaped(byte);
        }
        text.remove_prefix(character.size());
    }
    return result;
}

}  // namespace Tessitor::Tool
