#include "platform/linux/drawing/FillInside.h"

#include <algorithm>
#include <cmath>

void fillInside(const SPixels &pixels, const SArea &area, std::int64_t width, std::int64_t height,
                std::uint32_t pixel) {
    const SNativeRect visible = intersection(pixels.clip, area);
    const double radiusX = static_cast<double>(width) / 2;
    const double radiusY = static_cast<double>(height) / 2;
    for (std::int32_t y = visible.top; y < visible.bottom; ++y) {
        const auto edge = static_cast<double>(std::min(y - area.top, area.bottom - y));
        const double rise = radiusY > 0 ? std::max(0.0, (radiusY - edge) / radiusY) : 0.0;
        const double inset = radiusX - radiusX * std::sqrt(1 - rise * rise);
        fillSpan(pixels, y, area.left + std::llround(std::ceil(inset)),
                 area.right - std::llround(std::floor(inset)), pixel);
    }
}
