#include "platform/win32/drawing/SmoothText.h"

#include "platform/win32/drawing/CScreenContext.h"
#include "platform/win32/drawing/CSelectedObject.h"
#include "platform/win32/drawing/CWin32Font.h"
#include "platform/win32/drawing/SmoothSession.h"
#include "platform/win32/drawing/Widen.h"

using namespace Gdiplus;
using namespace Gdiplus::DllExports;

TGdiplusObject<GpFont> createSmoothFont(const INativeFont &font) {
    const CScreenContext screen;
    LOGFONTA record = {};
    GetObjectA(handleOf(font), sizeof record, &record);
    GpFont *smooth = nullptr;
    if (GdipCreateFontFromLogfontA(screen.getHandle(), &record, &smooth) != Ok) {
        const CSelectedObject selected(screen.getHandle(), handleOf(font));
        GdipCreateFontFromDC(screen.getHandle(), &smooth);
    }
    return TGdiplusObject<GpFont>(smooth);
}

TGdiplusObject<GpStringFormat> createStringFormat(int flags, int horizontal, int vertical) {
    GpStringFormat *format = nullptr;
    GdipCreateStringFormat(flags, LANG_NEUTRAL, &format);
    GdipSetStringFormatTrimming(format, StringTrimmingNone);
    GdipSetStringFormatAlign(format, static_cast<StringAlignment>(horizontal));
    GdipSetStringFormatLineAlign(format, static_cast<StringAlignment>(vertical));
    return TGdiplusObject<GpStringFormat>(format);
}

std::optional<SNativeTextSize> nativeSmoothTextSize(const char *text, const INativeFont &font) {
    if (!isSmoothSessionOpen())
        return {};
    const CScreenContext screen;
    GpGraphics *created = nullptr;
    GdipCreateFromHDC(screen.getHandle(), &created);
    const TGdiplusObject<GpGraphics> graphics(created);
    const std::wstring wide = widen(text);
    const RectF unlimited(0, 0, 0, 0);
    RectF bounds;
    const GpStatus status = GdipMeasureString(
        graphics.get(), wide.c_str(), static_cast<INT>(wide.size()), createSmoothFont(font).get(),
        &unlimited, createStringFormat(StringFormatFlagsLineLimit, 0, 0).get(), &bounds, nullptr,
        nullptr);
    if (status != Ok)
        return {};
    return SNativeTextSize{bounds.Width, bounds.Height};
}
