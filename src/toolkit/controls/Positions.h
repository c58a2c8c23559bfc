#pragma once

#include "foundation/CRect.h"

namespace Tessitor::GUI::Controls {

inline MathTools::CPoint originOf(const MathTools::CRect &rect) {
    return {rect.getLeft(), rect.getTop()};
}

/// @return the point relative to the top left corner of the rectangle.
inline MathTools::CPoint positionInside(const MathTools::CRect &rect,
                                        const MathTools::CPoint &point) {
    MathTools::CPoint inside = point;
    inside -= originOf(rect);
    return inside;
}

}  // namespace Tessitor::GUI::Controls
