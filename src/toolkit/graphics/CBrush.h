#pragma once

#include "platform/INativeSurface.h"
#include "toolkit/graphics/CAlphaColour.h"

namespace Tessitor::GUI::Graphics {

/// What shapes are filled with: a solid colour. [gui thread]
class CBrush {
public:
    CBrush() = default;
    CBrush(const CBrush &) = delete;
    CBrush &operator=(const CBrush &) = delete;
    virtual ~CBrush() { uninitialise(); }

    /// @param surface  must outlive the brush or the next uninitialise().
    void initialise(INativeSurface *surface, const Basics::CAlphaColour &colour);
    void uninitialise();  ///< selects the surface's first brush, then forgets the surface

    void setColour(const Basics::CAlphaColour &colour);  ///< also ends useNullBrush()
    void useNullBrush();  ///< plain drawing fills nothing; the colour is kept
    const Basics::CAlphaColour &getColour() const { return m_colour; }

private:
    void makeBrush();

    INativeSurface *m_surface = nullptr;  // not owned; null while no painting is under way
    Basics::CAlphaColour m_colour;
    bool m_isNull = false;
};

}  // namespace Tessitor::GUI::Graphics
