#include "platform/linux/drawing/PlainLines.h"

#include "platform/linux/drawing/Blend.h"
#include "platform/linux/drawing/Spans.h"

#include <algorithm>

namespace {

/// One coordinate of a line, as a function of the step along its longer axis.
struct SAxis {
    std::int64_t start;
    std::int64_t direction;  // -1, 0 or 1
    std::uint64_t length;    // at most 2^32 - 1, so that products of two fit

    SAxis(std::int32_t from, std::int32_t to)
        : start(from), direction(to > from   ? 1
                                 : to < from ? -1
                                             : 0),
          length(static_cast<std::uint64_t>(to > from ? std::int64_t{to} - from
                                                      : std::int64_t{from} - to)) {}
    std::int64_t at(std::uint64_t distance) const {
        return start + direction * static_cast<std::int64_t>(distance);
    }
    /// How far to go from the start until the coordinate is inside low to high - 1, and until it
    /// has left again. Both are numbers from 0 to length + 1.
    struct SRange {
        std::uint64_t first, last;
    };
    SRange range(std::int32_t low, std::int32_t high) const {
        if (direction == 0)
            return start >= low && start < high ? SRange{0, 1} : SRange{1, 1};
        const std::int64_t first = direction > 0 ? low - start : start - (high - std::int64_t{1});
        const std::int64_t last = direction > 0 ? high - start : start - (low - std::int64_t{1});
        return {bounded(first), bounded(last)};
    }

private:
    std::uint64_t bounded(std::int64_t distance) const {
        return std::min(static_cast<std::uint64_t>(std::max<std::int64_t>(distance, 0)),
                        length + 1);
    }
};

/// How the shorter axis follows the longer one: by the nearest pixel.
class CSlope {
public:
    /// @param halfGoesOn  whether a point just between two pixels belongs to the farther one: GDI
    ///                    takes the upper or the left one.
    CSlope(std::uint64_t steps, std::uint64_t rise, bool halfGoesOn)
        : m_steps(steps), m_rise(rise), m_halfGoesOn(halfGoesOn) {}

    std::uint64_t at(std::uint64_t step) const {
        const std::uint64_t product = step * m_rise;
        return rounded(product / m_steps, product % m_steps);
    }

    /// The first step from which on the distance is at least this; the number of steps if none is.
    std::uint64_t firstStep(std::uint64_t distance) const {
        std::uint64_t low = 0, high = m_steps;
        while (low < high) {
            const std::uint64_t middle = low + (high - low) / 2;
            if (at(middle) < distance)
                low = middle + 1;
            else
                high = middle;
        }
        return low;
    }

    /// Calls draw(step, distance) for each step from first to last - 1.
    template <typename Draw>
    void follow(std::uint64_t first, std::uint64_t last, Draw draw) const {
        std::uint64_t whole = first * m_rise / m_steps, rest = first * m_rise % m_steps;
        for (std::uint64_t step = first; step < last; ++step) {
            draw(step, rounded(whole, rest));
            rest += m_rise;
            if (rest >= m_steps) {
                rest -= m_steps;
                ++whole;
            }
        }
    }

private:
    std::uint64_t rounded(std::uint64_t whole, std::uint64_t rest) const {
        return whole + (2 * rest > m_steps || (2 * rest == m_steps && m_halfGoesOn) ? 1 : 0);
    }

    std::uint64_t m_steps, m_rise;
    bool m_halfGoesOn;
};

}  // namespace

void drawPlainLine(const SPixels &pixels, SNativePoint from, SNativePoint to, std::uint32_t pixel) {
    const SNativeRect &clip = pixels.clip;
    const SAxis x(from.x, to.x), y(from.y, to.y);
    if (y.length == 0) {
        fillSpan(pixels, from.y, x.direction > 0 ? from.x : to.x + std::int64_t{1},
                 x.direction > 0 ? to.x : from.x + std::int64_t{1}, pixel);
        return;
    }
    const bool isSteep = y.length > x.length;
    const SAxis &along = isSteep ? y : x, &across = isSteep ? x : y;
    const CSlope slope(along.length, across.length, across.direction < 0);

    const auto alongRange =
        isSteep ? along.range(clip.top, clip.bottom) : along.range(clip.left, clip.right);
    const auto acrossRange =
        isSteep ? across.range(clip.left, clip.right) : across.range(clip.top, clip.bottom);
    const std::uint64_t first = std::max(alongRange.first, slope.firstStep(acrossRange.first));
    const std::uint64_t last = std::min(alongRange.last, slope.firstStep(acrossRange.last));
    slope.follow(first, last, [&](std::uint64_t step, std::uint64_t distance) {
        const std::int64_t column = isSteep ? across.at(distance) : along.at(step);
        const std::int64_t row = isSteep ? along.at(step) : across.at(distance);
        std::uint32_t &under = pixels.row(static_cast<std::int32_t>(row))[column];
        under = blendedPixel(pixel, under);
    });
}

void drawWholeLine(const SPixels &pixels, SNativePoint from, SNativePoint to, std::uint32_t pixel) {
    drawPlainLine(pixels, from, to, pixel);
    fillSpan(pixels, to.y, to.x, to.x + std::int64_t{1}, pixel);
}
