#pragma once

#include "platform/INativeSmoothDrawing.h"
#include "platform/linux/drawing/CMemorySurface.h"
#include "platform/linux/drawing/SOutline.h"

/// Smooth drawing on the memory of a surface. Lines run through the centres of pixels; rectangles,
/// rounded rectangles and ellipses fill the space between their edges.
class CSmoothDrawing : public INativeSmoothDrawing {
public:
    /// @param surface  outlives this object.
    explicit CSmoothDrawing(CMemorySurface &surface);

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
    bool isSmooth() const { return m_smoothing != ENativeSmoothing::None; }
    SPixels clipped() const { return m_surface.pixelsInside(m_clip); }
    void draw(SNativeColour colour, const SOutline &outline);

    CMemorySurface &m_surface;
    ENativeSmoothing m_smoothing = ENativeSmoothing::None;
    SArea m_clip;
};
