#pragma once

#include "platform/linux/drawing/Spans.h"

#include <vector>

/// The border of a smooth shape: closed polygons, filled by the even-odd rule. Pixel x covers the
/// space from x to x + 1.
struct SOutline {
    struct SPoint {
        double x, y;
    };
    using Polygon = std::vector<SPoint>;

    std::vector<Polygon> polygons;

    /// @return the pixels that the outline touches; empty without points.
    SArea extents() const;

    static SOutline rectangle(double left, double top, double right, double bottom);
    /// @param radiusX  of the ellipses at the corners; so is radiusY. Not larger than half of the
    ///                 area.
    static SOutline roundedRectangle(const SArea &area, double radiusX, double radiusY);
    /// A straight line with a width.
    /// @param cap  as in SNativeSmoothPen.
    static SOutline line(SPoint from, SPoint to, double width, int cap);
};
