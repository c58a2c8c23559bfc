#include "platform/win32/drawing/CScreenContext.h"
#include "platform/win32/drawing/TWin32Surface.h"

std::unique_ptr<INativeSurface> createNativeSurface(const INativePaintTarget *compatibleWith,
                                                    std::int32_t width, std::int32_t height,
                                                    SNativeColour background) {
    if (width < 1 || height < 1)
        return nullptr;
    const CScreenContext screen;
    const HDC target =
        compatibleWith != nullptr ? deviceContextOf(*compatibleWith) : screen.getHandle();
    auto surface = std::make_unique<TWin32Surface<INativeSurface>>(
        target, TGdiObject<HBITMAP>(CreateCompatibleBitmap(target, width, height)), width, height);
    if (!surface->isUsable())
        return nullptr;
    const TGdiObject<HBRUSH> brush(CreateSolidBrush(toColorref(background)));
    const RECT whole = {0, 0, width, height};
    FillRect(surface->getDeviceContext(), &whole, brush.get());
    return surface;
}
