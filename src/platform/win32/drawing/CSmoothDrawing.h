#pragma once

#include "platform/INativeSmoothDrawing.h"
#include "platform/win32/drawing/ISmoothSurface.h"
#include "platform/win32/drawing/InOrder.h"

#include <optional>

/// Draws with GDI+.
class CSmoothDrawing : public INativeSmoothDrawing {
public:
    /// @param surface  must outlive this.
    CSmoothDrawing(SSmoothGraphics graphics, ISmoothSurface &surface)
        : m_graphics(std::move(graphics)), m_surface(surface) {}

    void setSmoothing(ENativeSmoothing smoothing) override;
    void setClip(const SNativeRect &area) override { m_clip = inOrder(area); }
    void resetClip() override { m_clip.reset(); }
    void drawLine(const SNativeSmoothPen &pen, SNativePoint from, SNativePoint to) override;
    void drawRectangle(const SNativeSmoothPen &pen, const SNativeRect &rect) override;
    void fillRectangle(SNativeColour colour, const SNativeRect &rect) override;
    void fillRoundedRectangle(SNativeColour colour, const SNativeRect &rect, std::int32_t width,
                              std::int32_t height) override;
    void fillEllipse(SNativeColour colour, const SNativeRect &rect) override;
    void fillPolygon(SNativeColour colour, std::span<const SNativePoint> points) override;
    void drawText(const char *text, const SNativeRect &rect, const INativeFont &font,
                  SNativeColour colour, int horizontal, int vertical) override;

private:
    /// @param area  clips the operation further.
    /// @return the graphics, ready for one operation.
    Gdiplus::GpGraphics *prepare(const std::optional<SNativeRect> &area = {});

    SSmoothGraphics m_graphics;
    ISmoothSurface &m_surface;
    std::optional<SNativeRect> m_clip;
};
