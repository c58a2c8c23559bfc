#include "platform/linux/drawing/WideLines.h"

#include "platform/linux/drawing/RoundedShapes.h"
#include "platform/linux/drawing/Spans.h"

#include <algorithm>
#include <cmath>

namespace {

SArea aboutPoint(SNativePoint centre, std::int64_t width) {
    const std::int64_t left = centre.x - width / 2, top = centre.y - width / 2;
    return {left, top, left + width, top + width};
}

/// Narrows low and high to where low <= slope * x + offset <= high.
struct SBand {
    double slope, offset, low, high;

    void narrow(double &first, double &last) const {
        if (slope == 0) {
            if (offset < low || offset > high)
                last = first - 1;
            return;
        }
        const double one = (low - offset) / slope, other = (high - offset) / slope;
        first = std::max(first, std::min(one, other));
        last = std::min(last, std::max(one, other));
    }
};

/// Fills the rectangle between the ends: all pixels whose centres are at most half the width from
/// the line and lie between its ends.
void fillBody(const SPixels &pixels, SNativePoint from, SNativePoint to, std::int64_t width,
              std::uint32_t pixel) {
    const double dx = static_cast<double>(to.x) - from.x, dy = static_cast<double>(to.y) - from.y;
    const double length = std::hypot(dx, dy), half = static_cast<double>(width) / 2;
    if (length == 0)
        return;
    // An even width has its middle between two pixels.
    const double middle = width % 2 == 0 ? 0.5 : 0.0;
    const SArea lower = inOrder({from.x, from.y, to.x, to.y});
    const SNativeRect visible =
        intersection(pixels.clip, {lower.left - width, lower.top - width, lower.right + width + 1,
                                   lower.bottom + width + 1});
    for (std::int32_t row = visible.top; row < visible.bottom; ++row) {
        const double y = row - static_cast<double>(from.y) + middle;
        double first = static_cast<double>(visible.left) - from.x + middle;
        double last = static_cast<double>(visible.right) - 1 - from.x + middle;
        SBand{dx, dy * y, 0, length * length}.narrow(first, last);
        SBand{dy, -dx * y, -half * length, half * length}.narrow(first, last);
        if (first <= last)
            fillSpan(pixels, row, std::llround(std::ceil(first - middle)) + from.x,
                     std::llround(std::floor(last - middle)) + from.x + 1, pixel);
    }
}

}  // namespace

void fillDisc(const SPixels &pixels, SNativePoint centre, std::int64_t width, std::uint32_t pixel) {
    fillRounded(pixels, aboutPoint(centre, width), width, width, pixel);
}

void drawWideLine(const SPixels &pixels, SNativePoint from, SNativePoint to, std::int64_t width,
                  std::uint32_t pixel) {
    fillDisc(pixels, from, width, pixel);
    fillDisc(pixels, to, width, pixel);
    fillBody(pixels, from, to, width, pixel);
}
