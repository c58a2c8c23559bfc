#pragma once

#include "platform/INativeSmoothDrawing.h"
#include "platform/linux/drawing/CMemorySurface.h"

#include <cairo.h>
#include <functional>

/// Smooth drawing by cairo on the memory of a surface. Cairo is asked only for what plain spans
/// cannot draw: smooth edges and wide lines. Lines run through the centres of pixels; rectangles,
/// rounded rectangles and ellipses fill the space between their edges.
class CCairoDrawing : public INativeSmoothDrawing {
public:
    /// @param surface  outlives this object.
    explicit CCairoDrawing(CMemorySurface &surface);

    void setSmoothing(ENativeSmoothing smoothing) override { m_smoothing = smoothing; }
    void setClip(const SNativeRect &area) override { m_clip = inOrder(area); }
    void resetClip() override;

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
    using Path = std::function<void(cairo_t *)>;

    bool isSmooth() const { return m_smoothing != ENativeSmoothing::None; }
    SPixels clipped() const { return m_surface.pixelsInside(m_clip); }
    void stroke(const SNativeSmoothPen &pen, const Path &path);
    void fill(SNativeColour colour, const Path &path);
    /// @param margin  how far from its path the shape may reach, in pixels.
    /// @param paint   draws the shape along the path.
    void draw(SNativeColour colour, const Path &path, std::int32_t margin, const Path &paint);

    CMemorySurface &m_surface;
    ENativeSmoothing m_smoothing = ENativeSmoothing::None;
    SArea m_clip;
};
