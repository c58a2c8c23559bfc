#pragma once

#include "toolkit/graphics/CGraphics.h"

namespace Tessitor::GUI::Controls {

/// Puts back the clip, the update area and the origin of the graphics when it is destroyed.
class CSavedDrawing {
public:
    explicit CSavedDrawing(Graphics::CGraphics &graphics)
        : m_graphics(graphics), m_clip(graphics.getClip().getClipRegion()),
          m_updateArea(graphics.getUpdateArea()), m_offset(graphics.getDrawingOffset()) {}
    CSavedDrawing(const CSavedDrawing &) = delete;
    CSavedDrawing &operator=(const CSavedDrawing &) = delete;
    ~CSavedDrawing() {
        m_graphics.getClip().setClipRegion(m_clip);
        m_graphics.setUpdateArea(m_updateArea);
        m_graphics.setDrawingOffset(m_offset);
    }

private:
    Graphics::CGraphics &m_graphics;
    MathTools::CRect m_clip;
    MathTools::CRect m_updateArea;
    MathTools::CPoint m_offset;
};

}  // namespace Tessitor::GUI::Controls
