#include "platform/linux/drawing/TextLines.h"

#include <algorithm>

SNativeTextSize nativeTextSize(const char *text, const INativeFont *font) {
    if (font == nullptr)
        return nativeTextSize(text, createNativeFont({}).get());
    const std::string_view line = text;
    if (line.empty())
        return {};
    const auto &linuxFont = static_cast<const CLinuxFont &>(*font);
    return {widthOf(linuxFont, line), static_cast<float>(linuxFont.getLineHeight())};
}

std::optional<SNativeTextSize> nativeSmoothTextSize(const char *text, const INativeFont &font) {
    const auto &linuxFont = static_cast<const CLinuxFont &>(font);
    SNativeTextSize size;
    if (*text == '\0')
        return size;
    const auto lineHeight = static_cast<float>(linuxFont.getLineHeight());
    forEachLine(text, [&](std::string_view line) {
        size.width = std::max(size.width, widthOf(linuxFont, line));
        size.height += lineHeight;
    });
    size.width += static_cast<float>(linuxFont.getEm()) / 3.0f;
    return size;
}
