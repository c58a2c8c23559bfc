#pragma once

/// Shown for a byte that is not UTF-8.
constexpr char32_t replacementCharacter = 0xfffd;

/// Reads a character of a UTF-8 text and moves the pointer past it. A byte that belongs to no valid
/// character gives replacementCharacter. Never reads past the terminator.
inline char32_t readUtf8(const char *&text) {
    const auto first = static_cast<unsigned char>(*text++);
    if (first < 0x80)
        return first;
    if (first < 0xc0 || first >= 0xf8)
        return replacementCharacter;
    const int length = first < 0xe0 ? 2 : first < 0xf0 ? 3 : 4;
    char32_t character = first & (0x7fu >> length);
    for (int i = 0; i < length - 1; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xc0) != 0x80)
            return replacementCharacter;
        character = character << 6 | (next & 0x3f);
    }
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool isSurrogate = character >= 0xd800 && character < 0xe000;
    if (character < smallest[length] || character > 0x10ffff || isSurrogate)
        return replacementCharacter;
    text += length - 1;
    return character;
}
