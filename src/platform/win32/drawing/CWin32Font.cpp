#include "platform/win32/drawing/CWin32Font.h"

#include "platform/win32/drawing/CScreenContext.h"
#include "platform/win32/drawing/CSelectedObject.h"

#include <algorithm>
#include <cstring>
#include <optional>

std::unique_ptr<INativeFont> createNativeFont(const SNativeFontRecord &record) {
    LOGFONTA font = {};
    font.lfHeight = record.height;
    font.lfWidth = record.width;
    font.lfEscapement = record.escapement;
    font.lfOrientation = record.orientation;
    font.lfWeight = record.weight;
    font.lfItalic = record.italic;
    font.lfUnderline = record.underline;
    font.lfStrikeOut = record.strikeOut;
    font.lfCharSet = record.characterSet;
    font.lfOutPrecision = record.outputPrecision;
    font.lfClipPrecision = record.clipPrecision;
    font.lfQuality = record.quality;
    font.lfPitchAndFamily = record.pitchAndFamily;
    std::copy(std::begin(record.faceName), std::end(record.faceName), font.lfFaceName);
    return std::make_unique<CWin32Font>(TGdiObject<HFONT>(CreateFontIndirectA(&font)));
}

SNativeTextSize nativeTextSize(const char *text, const INativeFont *font) {
    const CScreenContext screen;
    std::optional<CSelectedObject> selected;
    if (font != nullptr)
        selected.emplace(screen.getHandle(), handleOf(*font));
    SIZE size = {};
    GetTextExtentPoint32A(screen.getHandle(), text, static_cast<int>(std::strlen(text)), &size);
    return {static_cast<float>(size.cx), static_cast<float>(size.cy)};
}
