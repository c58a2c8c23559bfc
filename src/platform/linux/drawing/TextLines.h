#pragma once

#include "platform/linux/drawing/CLinuxFont.h"
#include "platform/linux/drawing/Utf8.h"

#include <string_view>

/// Calls visit(line) for each line of a text: a line feed starts a new one.
template <typename Visit>
void forEachLine(std::string_view text, const Visit &visit) {
    for (std::size_t end = text.find('\n'); end != text.npos; end = text.find('\n')) {
        visit(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    visit(text);
}

/// Calls visit(glyph, x) for each character of a line; x counts in pixels from the line's start.
/// @param line  UTF-8, followed by a line feed or a terminator.
/// @return the width of the line in pixels.
template <typename Visit>
float forEachGlyph(const CLinuxFont &font, std::string_view line, const Visit &visit) {
    const SGlyph *previous = nullptr;
    const char *const end = line.data() + line.size();
    float x = 0.0f;
    for (const char *next = line.data(); next < end;) {
        const SGlyph &glyph = font.getGlyph(readUtf8(next));
        if (previous != nullptr && previous->face == glyph.face && glyph.face != nullptr)
            x += glyph.face->getKerning(previous->index, glyph.index);
        visit(glyph, x);
        x += glyph.advance;
        previous = &glyph;
    }
    return x;
}

/// The width of a line in pixels.
inline float widthOf(const CLinuxFont &font, std::string_view line) {
    return forEachGlyph(font, line, [](const SGlyph &, float) {});
}
