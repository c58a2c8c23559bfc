#pragma once

#include "foundation/CRect.h"
#include "toolkit/graphics/CNativeImage.h"

namespace Tessitor::GUI::Graphics {

/// Limits drawing to a rectangle of an off-screen image. The drawing offset does not move it.
/// [gui thread]
class CClip {
public:
    CClip() = default;
    CClip(const CClip &) = delete;
    CClip &operator=(const CClip &) = delete;
    virtual ~CClip() = default;

    /// @param image    throws CException if it is null. Must outlive the clip or uninitialise().
    /// @param area     what may be drawn on; the clip at first, though it is not active yet.
    /// @param graphics  the smooth drawing on the image; null for none. Must outlive the clip too.
    void initialise(CNativeImage *image, const MathTools::CRect &area,
                    INativeSmoothDrawing *graphics);
    void uninitialise();

    /// Makes the clip active. Does nothing before initialise().
    void setClipRegion(const MathTools::CRect &rect);
    /// Makes the clip inactive. Kept: only smooth drawing forgets the last region. The image itself
    /// keeps it until the next one is set, so nothing can be drawn outside.
    void resetClip();

    bool isActive() const { return m_isActive; }
    const MathTools::CRect &getDrawingArea() const { return m_drawingArea; }
    /// The last region; the whole area before the first.
    const MathTools::CRect &getClipRegion() const { return m_clipRegion; }

private:
    bool m_isActive = false;
    MathTools::CRect m_drawingArea;
    MathTools::CRect m_clipRegion;
    CNativeImage *m_image = nullptr;             // not owned; null if not initialised
    INativeSmoothDrawing *m_graphics = nullptr;  // not owned
};

}  // namespace Tessitor::GUI::Graphics
