#pragma once

#include "platform/INativeSurface.h"
#include "toolkit/graphics/CAlphaColour.h"

namespace Tessitor::GUI::Graphics {

/// What lines and outlines are drawn with: a solid colour and a width. [gui thread]
class CPen {
public:
    CPen() = default;
    CPen(const CPen &) = delete;
    CPen &operator=(const CPen &) = delete;
    virtual ~CPen() { CPen::deletePen(); }

    virtual void makePen();    ///< selects a pen of this width and colour into the surface
    virtual void deletePen();  ///< selects the surface's first pen, then forgets the surface

    /// @param surface  must outlive the pen or the next uninitialise().
    void initialise(std::int32_t width, INativeSurface *surface,
                    const Basics::CAlphaColour &colour);
    void uninitialise() { deletePen(); }

    void setWidth(std::int32_t width);                   ///< in pixels; also ends useNullPen()
    void setColour(const Basics::CAlphaColour &colour);  ///< also ends useNullPen()
    void setWidthAndColour(std::int32_t width, const Basics::CAlphaColour &colour);
    void useNullPen();  ///< plain drawing draws no lines; width and colour are kept
    void setLineCap(std::int32_t cap) { m_lineCap = cap; }

    std::int32_t getWidth() const { return m_width; }
    const Basics::CAlphaColour &getColour() const { return m_colour; }
    std::int32_t getLineCap() const { return m_lineCap; }
    /// For smooth drawing, which alone uses the alpha of the colour and the cap.
    SNativeSmoothPen toNative() const;

private:
    INativeSurface *m_surface = nullptr;  // not owned; null while no painting is under way
    std::int32_t m_width = 1;             // pixels
    Basics::CAlphaColour m_colour;
    std::int32_t m_lineCap = 0;  // of smooth lines; 0 is flat
    bool m_isNull = false;
};

}  // namespace Tessitor::GUI::Graphics
