#include "platform/win32/drawing/CAlphaSurface.h"

#include "platform/win32/drawing/CScreenContext.h"
#include "platform/win32/drawing/CWin32Bitmap.h"
#include "platform/win32/drawing/SmoothSession.h"

#include <algorithm>

using namespace Gdiplus;
using namespace Gdiplus::DllExports;

CAlphaSurface::CAlphaSurface(HDC compatibleWith, TGdiObject<HBITMAP> bitmap, void *bits,
                             std::int32_t width, std::int32_t height)
    : TWin32Surface(compatibleWith, std::move(bitmap), width, height),
      m_pixels(static_cast<std::uint32_t *>(bits)) {}

HDC CAlphaSurface::getDeviceContext() const {
    setFourthByte(EFourthByte::Opposite);
    return TWin32Surface::getDeviceContext();
}

HDC CAlphaSurface::getBitmapContext() const {
    setFourthByte(EFourthByte::Alpha);
    return TWin32Surface::getDeviceContext();
}

RECT CAlphaSurface::prepareForGraphics() {
    setFourthByte(EFourthByte::Alpha);
    GdiFlush();
    return TWin32Surface::prepareForGraphics();
}

void CAlphaSurface::setFourthByte(EFourthByte meaning) const {
    if (meaning == m_fourthByte)
        return;
    m_fourthByte = meaning;
    GdiFlush();
    for (std::uint32_t &pixel : getPixels())
        pixel ^= 0xff000000;
}

std::span<std::uint32_t> CAlphaSurface::getPixels() const {
    return {m_pixels, static_cast<std::size_t>(getWidth()) * static_cast<std::size_t>(getHeight())};
}

SSmoothGraphics CAlphaSurface::createGraphics() {
    GpBitmap *bitmap = nullptr;
    GdipCreateBitmapFromScan0(getWidth(), getHeight(), /*stride*/ getWidth() * 4,
                              PixelFormat32bppPARGB, reinterpret_cast<BYTE *>(m_pixels), &bitmap);
    TGdiplusObject<GpBitmap> picture(bitmap);
    GpGraphics *graphics = nullptr;
    GdipGetImageGraphicsContext(picture.get(), &graphics);
    return {std::move(picture), TGdiplusObject<GpGraphics>(graphics)};
}

std::unique_ptr<INativeBitmap> CAlphaSurface::makeBitmap() {
    void *bits = nullptr;
    TGdiObject<HBITMAP> copy = createDibSection(getWidth(), -getHeight(), bits);
    if (copy == nullptr)
        return nullptr;
    setFourthByte(EFourthByte::Alpha);
    GdiFlush();
    std::ranges::copy(getPixels(), static_cast<std::uint32_t *>(bits));
    return std::make_unique<CWin32Bitmap>(std::move(copy), getWidth(), getHeight());
}

std::unique_ptr<INativeAlphaSurface> createNativeAlphaSurface(std::int32_t width,
                                                              std::int32_t height) {
    if (width < 1 || height < 1 || !isSmoothSessionOpen())
        return nullptr;
    void *bits = nullptr;
    TGdiObject<HBITMAP> bitmap = createDibSection(width, -height, bits);
    if (bitmap == nullptr)
        return nullptr;
    const CScreenContext screen;
    auto surface =
        std::make_unique<CAlphaSurface>(screen.getHandle(), std::move(bitmap), bits, width, height);
    return surface->isUsable() ? std::move(surface) : nullptr;
}
