#include "platform/linux/windowing/text/TextEncodings.h"

#include "platform/linux/drawing/Utf8.h"

std::string utf8FromLatin1(std::string_view text) {
    std::string converted;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x80) {
            converted += character;
        } else {
            converted += static_cast<char>(0xC0 | byte >> 6);
            converted += static_cast<char>(0x80 | (byte & 0x3F));
        }
    }
    return converted;
}

std::string latin1FromUtf8(const std::string &text) {
    std::string converted;
    const char *next = text.c_str();
    for (const char *const end = next + text.size(); next < end;) {
        const char32_t character = readUtf8(next);
        converted += character < 0x100 ? static_cast<char>(character) : '?';
    }
    return converted;
}
