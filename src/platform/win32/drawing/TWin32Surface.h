#pragma once

#include "platform/INativeSurface.h"
#include "platform/win32/drawing/CMemoryContext.h"
#include "platform/win32/drawing/GdiObjects.h"
#include "platform/win32/drawing/IDeviceContext.h"
#include "platform/win32/drawing/ISmoothSurface.h"

/// What a plain surface and one with alpha have in common: a bitmap in a memory device context, and
/// GDI to draw on it. Interface is INativeSurface or INativeAlphaSurface.
template <typename Interface>
class TWin32Surface : public Interface, public IDeviceContext, public ISmoothSurface {
public:
    TWin32Surface(HDC compatibleWith, TGdiObject<HBITMAP> bitmap, std::int32_t width,
                  std::int32_t height);

    std::int32_t getWidth() const override { return m_width; }
    std::int32_t getHeight() const override { return m_height; }
    HDC getDeviceContext() const override { return m_context.getHandle(); }
    bool isUsable() const { return m_context.isUsable(); }

    void copyFrom(const INativeSurface &source, const SNativeRect &area) override;
    void setPen(SNativeColour colour, std::int32_t width) override;
    void setNullPen() override;
    void setBrush(SNativeColour colour) override;
    void setNullBrush() override;
    void setClip(const SNativeRect &area) override;
    void setPixel(SNativePoint point, SNativeColour colour) override;
    SNativeColour getPixel(SNativePoint point) const override;
    void moveTo(SNativePoint point) override;
    void lineTo(SNativePoint point) override;
    void drawArc(const SNativeRect &rect, SNativePoint start, SNativePoint end,
                 bool clockwise) override;
    void fillRectangle(const SNativeRect &rect) override;
    void drawRectangle(const SNativeRect &rect) override;
    void drawRoundedRectangle(const SNativeRect &rect, std::int32_t width,
                              std::int32_t height) override;
    void drawEllipse(const SNativeRect &rect) override;
    void drawPolygon(std::span<const SNativePoint> points) override;
    void blendFrom(const INativeSurface &source, const SNativeRect &from, const SNativeRect &to,
                   std::uint8_t alpha) override;
    void copyBitmap(const INativeBitmap &bitmap, const SNativeRect &to, SNativePoint from) override;
    void stretchBitmap(const INativeBitmap &bitmap, const SNativeRect &to,
                       const SNativeRect &from) override;
    void blendBitmap(const INativeBitmap &bitmap, const SNativeRect &to, const SNativeRect &from,
                     std::uint8_t alpha) override;
    void drawText(const char *text, const SNativeRect &rect, const INativeFont &font,
                  SNativeColour colour, unsigned format) override;
    std::unique_ptr<INativeSmoothDrawing> startSmoothDrawing() override;

protected:
    // ISmoothSurface
    SSmoothGraphics createGraphics() override;
    RECT prepareForGraphics() override { return m_clip; }

    /// @return the context, ready for pictures whose pixels have alpha.
    virtual HDC getBitmapContext() const { return getDeviceContext(); }

private:
    void selectPen(TGdiObject<HPEN> pen);

    const std::int32_t m_width, m_height;
    RECT m_clip;
    // What is selected into the context must outlive it.
    TGdiObject<HPEN> m_pen;
    TGdiObject<HBRUSH> m_brush;
    TGdiObject<HBITMAP> m_bitmap;
    CMemoryContext m_context;
};
