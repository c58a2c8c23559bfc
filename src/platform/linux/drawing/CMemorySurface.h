#pragma once

#include "platform/INativeSurface.h"
#include "platform/linux/drawing/Blits.h"
#include "platform/linux/drawing/Spans.h"

#include <memory>

/// A surface in memory. It is filled with its background no sooner and no farther than needed: a
/// painting that draws inside a small clip does not touch the rest.
class CMemorySurface : public INativeAlphaSurface {
public:
    /// @param background  a premultiplied pixel.
    /// @return null if a dimension is below 1 or above 32767, or if there is no memory.
    static std::unique_ptr<CMemorySurface> create(std::int32_t width, std::int32_t height,
                                                  std::uint32_t background);

    std::int32_t getWidth() const override { return m_pixels.width; }
    std::int32_t getHeight() const override { return m_pixels.height; }

    void setPen(SNativeColour colour, std::int32_t width) override;
    void setNullPen() override { m_pen.width = 0; }
    void setBrush(SNativeColour colour) override { m_brush = {opaquePixel(colour), true}; }
    void setNullBrush() override { m_brush.isVisible = false; }
    void setClip(const SNativeRect &area) override;

    void setPixel(SNativePoint point, SNativeColour colour) override;
    SNativeColour getPixel(SNativePoint point) const override;

    void moveTo(SNativePoint point) override { m_position = point; }
    void lineTo(SNativePoint point) override;
    void drawArc(const SNativeRect &rect, SNativePoint start, SNativePoint end,
                 bool clockwise) override;
    void fillRectangle(const SNativeRect &rect) override;
    void drawRectangle(const SNativeRect &rect) override;
    void drawRoundedRectangle(const SNativeRect &rect, std::int32_t width,
                              std::int32_t height) override;
    void drawEllipse(const SNativeRect &rect) override;
    void drawPolygon(std::span<const SNativePoint> points) override;

    void copyFrom(const INativeSurface &source, const SNativeRect &area) override;
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
    std::unique_ptr<INativeBitmap> makeBitmap() override;

    /// The pixels to draw on, inside the clip of the surface and this area.
    SPixels pixelsInside(const SArea &area) const;

    /// The pixels to read from: those in this area are filled.
    SSource source(const SArea &area) const;

private:
    struct SPen {
        std::uint32_t pixel = 0xff000000u;
        std::int32_t width = 1;  // 0 for a null pen
    };
    struct SBrush {
        std::uint32_t pixel = 0xffffffffu;
        bool isVisible = true;
    };

    CMemorySurface(std::unique_ptr<std::uint32_t[]> data, std::int32_t width, std::int32_t height,
                   std::uint32_t background);
    SPixels clipped() const { return pixelsInside(m_pixels.clip); }
    void drawSegment(const SPixels &pixels, SNativePoint from, SNativePoint to) const;
    void drawRounded(const SNativeRect &rect, std::int64_t width, std::int64_t height);
    void drawFrame(const SPixels &pixels, const SArea &area) const;
    void fillBackground(const SNativeRect &area) const;
    void storeBackground(const SNativeRect &area) const;

    std::unique_ptr<std::uint32_t[]> m_data;
    SPixels m_pixels;  // with the clip of the surface
    std::uint32_t m_background;
    mutable SNativeRect m_filled;  // the part that is not undefined any more
    SPen m_pen;
    SBrush m_brush;
    SNativePoint m_position;
};
