#pragma once

#include "platform/SNativeTextSize.h"

#include <cstdint>
#include <memory>
#include <optional>

/// What a font is created from, laid out like LOGFONTA on Windows. Linux uses height, weight,
/// italic, underline, strikeOut and faceName.
struct SNativeFontRecord {
    std::int32_t height = 0;  // pixels; negative for the size of the letters without their leading
    std::int32_t width = 0;   // 0 for the natural width
    std::int32_t escapement = 0;
    std::int32_t orientation = 0;
    std::int32_t weight = 400;  // 400 for regular, 700 for bold
    std::uint8_t italic = 0;
    std::uint8_t underline = 0;
    std::uint8_t strikeOut = 0;
    std::uint8_t characterSet = 0;
    std::uint8_t outputPrecision = 0;
    std::uint8_t clipPrecision = 0;
    std::uint8_t quality = 0;
    std::uint8_t pitchAndFamily = 0;
    char faceName[32] = "";  // with its terminator, in the system's narrow encoding
};

/// Copies a face name into a record, cut to 31 bytes but never inside a multibyte character, and
/// fills the rest with zeros.
void copyNativeFaceName(char (&target)[32], const char *face);

/// A font that surfaces can draw with. [gui thread]
class INativeFont {
public:
    virtual ~INativeFont() = default;
};

/// Cannot fail: the system draws with a similar face if it lacks the one that was asked for. Linux
/// looks for the face only when the font is first used, so that the effect loads and runs where
/// there is no font at all.
std::unique_ptr<INativeFont> createNativeFont(const SNativeFontRecord &record);

/// The size of a line of text as INativeSurface::drawText() draws it.
/// @param text  in the system's narrow encoding.
/// @param font  null for the system's own font.
SNativeTextSize nativeTextSize(const char *text, const INativeFont *font);

/// The size of a text as INativeSmoothDrawing::drawText() draws it: with a sixth of the font's size
/// to its left and right. A line feed starts a new line.
/// @return nothing if smooth drawing is not running or refuses. Without any font, Linux takes each
///         character to be half as wide as the font's size.
std::optional<SNativeTextSize> nativeSmoothTextSize(const char *text, const INativeFont &font);
