#pragma once

#include "platform/win32/drawing/TWin32Surface.h"

/// A surface with alpha. GDI knows nothing of alpha and sets the fourth byte of each pixel that it
/// draws to 0, while GDI+ and AlphaBlend() keep alpha there. So while GDI draws, the byte is
/// 255 - alpha: what it draws is opaque.
class CAlphaSurface : public TWin32Surface<INativeAlphaSurface> {
public:
    /// @param bitmap  has 32 bits a pixel. The first row is the top.
    /// @param bits    its pixels, all 0.
    CAlphaSurface(HDC compatibleWith, TGdiObject<HBITMAP> bitmap, void *bits, std::int32_t width,
                  std::int32_t height);

    HDC getDeviceContext() const override;
    std::unique_ptr<INativeBitmap> makeBitmap() override;

private:
    enum class EFourthByte { Alpha, Opposite };

    SSmoothGraphics createGraphics() override;
    RECT prepareForGraphics() override;
    HDC getBitmapContext() const override;

    void setFourthByte(EFourthByte meaning) const;
    std::span<std::uint32_t> getPixels() const;

    std::uint32_t *m_pixels;  // owned by the bitmap
    mutable EFourthByte m_fourthByte = EFourthByte::Alpha;
};
