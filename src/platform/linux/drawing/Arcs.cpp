#include "platform/linux/drawing/Arcs.h"

#include "platform/linux/drawing/CEllipseQuarter.h"
#include "platform/linux/drawing/RoundedShapes.h"
#include "platform/linux/drawing/WideLines.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

/// As seen from the centre, with y upwards. Doubles are exact for all sizes that can be seen.
struct SDirection {
    double x, y;

    bool isLower() const { return y < 0 || (y == 0 && x < 0); }
    /// Whether the angle, from 0 to 360 degrees, is smaller than the other.
    bool isBefore(const SDirection &other) const {
        return isLower() != other.isLower() ? other.isLower() : x * other.y > y * other.x;
    }
};

/// A pixel of the outline. The quadrants count counter-clockwise from the upper right one.
struct SPlace {
    int quadrant;
    SDirection direction;
    std::int64_t column, row;

    bool isBefore(const SDirection &other) const {
        if (quadrant == 3 && direction.y == 0)
            return false;  // at 360 degrees
        // A pixel just in the direction comes before it in the lower half, after it in the upper.
        return direction.isBefore(other) || (other.isLower() && !other.isBefore(direction));
    }
    bool isBefore(const SPlace &other) const {
        return quadrant != other.quadrant
                   ? quadrant < other.quadrant
                   : direction.x * other.direction.y > direction.y * other.direction.x;
    }
    bool isAt(const SPlace &other) const { return column == other.column && row == other.row; }
};

/// Calls visit(SPlace) for the pixels of the outline inside the part. The rows and columns in the
/// middle of odd sizes are visited twice.
template <typename Visit>
void visitOutline(const SArea &area, const SNativeRect &part, Visit visit) {
    const CEllipseQuarter quarter(area.width(), area.height());
    const std::int64_t middleRow = (area.height() - 1) / 2, middleColumn = (area.width() - 1) / 2;
    for (std::int32_t y = part.top; y < part.bottom; ++y) {
        const std::int64_t above = y - area.top, below = area.bottom - 1 - y;
        const auto run = quarter.run(std::min(above, below));
        const double height = static_cast<double>(middleRow - std::min(above, below));
        const auto visitRun = [&](bool isLeft, bool isUpper) {
            const std::int64_t first =
                std::max(run.first, isLeft ? part.left - area.left : area.right - part.right);
            const std::int64_t last = std::min(run.last, isLeft ? part.right - 1 - area.left
                                                                : area.right - 1 - part.left);
            for (std::int64_t i = first; i <= last; ++i) {
                const double side = static_cast<double>(middleColumn - i);
                visit(SPlace{isUpper ? (isLeft ? 1 : 0) : (isLeft ? 2 : 3),
                             {isLeft ? -side : side, isUpper ? height : -height},
                             isLeft ? area.left + i : area.right - 1 - i,
                             y});
            }
        };
        for (const bool isLeft : {false, true}) {
            if (above <= below)
                visitRun(isLeft, true);
            if (above >= below)
                visitRun(isLeft, false);
        }
    }
}

/// The directions from one counter-clockwise to another.
class CSector {
public:
    CSector(const SDirection &start, const SDirection &end)
        : m_start(start), m_end(end), m_wraps(!start.isBefore(end)) {}

    /// @param place  an SPlace or an SDirection.
    template <typename Place>
    bool contains(const Place &place) const {
        const bool isPastStart = !place.isBefore(m_start), isBeforeEnd = place.isBefore(m_end);
        return m_wraps ? isPastStart || isBeforeEnd : isPastStart && isBeforeEnd;
    }
    /// Whether one of two pixels inside comes before the other.
    bool isBefore(const SPlace &one, const SPlace &other) const {
        const bool oneIsLate = m_wraps && one.isBefore(m_start);
        const bool otherIsLate = m_wraps && other.isBefore(m_start);
        return oneIsLate != otherIsLate ? otherIsLate : one.isBefore(other);
    }

private:
    SDirection m_start, m_end;
    bool m_wraps;
};

/// An arc inside a rectangle, without its pen.
struct SArc {
    SArea area;
    std::int64_t centreX, centreY;

    explicit SArc(const SArea &ellipse)
        : area(ellipse), centreX(area.left + area.width() / 2),
          centreY(area.top + area.height() / 2) {}

    SDirection directionTo(std::int64_t x, std::int64_t y) const {
        return {static_cast<double>(x - centreX), static_cast<double>(centreY - y)};
    }
    /// Where the ellipse crosses a direction.
    SNativePoint crossing(const SDirection &direction) const {
        const double a = static_cast<double>(area.width() - 1) / 2;
        const double b = static_cast<double>(area.height() - 1) / 2;
        const double reach = std::hypot(direction.x * b, direction.y * a);
        const double factor = reach > 0 ? a * b / reach : 0;
        return {static_cast<std::int32_t>(
                    std::floor(static_cast<double>(area.left) + a + factor * direction.x + 0.5)),
                static_cast<std::int32_t>(
                    std::floor(static_cast<double>(area.top) + b - factor * direction.y + 0.5))};
    }
};

/// @return what comes last in a sector, whether visible or not; nothing for an ellipse of which
///         walking around would take too long.
std::optional<SPlace> lastPlace(const SArea &area, const CSector &sector, bool clockwise) {
    std::optional<SPlace> last;
    if (std::max(area.width(), area.height()) > CEllipseQuarter::longestSteppedSize)
        return last;
    const SNativeRect whole{
        static_cast<std::int32_t>(area.left), static_cast<std::int32_t>(area.top),
        static_cast<std::int32_t>(area.right), static_cast<std::int32_t>(area.bottom)};
    visitOutline(area, whole, [&](const SPlace &place) {
        if (sector.contains(place) && (!last || sector.isBefore(*last, place) != clockwise))
            last = place;
    });
    return last;
}

void drawThinArc(const SPixels &pixels, const SArea &area, const CSector &sector, bool clockwise,
                 std::uint32_t pixel) {
    const SNativeRect visible = intersection(pixels.clip, area);
    if (SArea(visible).isEmpty())
        return;
    const std::optional<SPlace> last = lastPlace(area, sector, clockwise);
    visitOutline(area, visible, [&](const SPlace &place) {
        if (sector.contains(place) && !(last && last->isAt(place)))
            fillSpan(pixels, place.row, place.column, place.column + 1, pixel);
    });
}

void drawWideArc(const SPixels &pixels, const SArc &arc, const CSector &sector,
                 std::int64_t penWidth, std::uint32_t pixel) {
    const SArea &area = arc.area;
    visitRing(pixels.clip, area, area.width(), area.height(), penWidth,
              [&](std::int32_t y, std::int64_t left, std::int64_t right) {
                  left = std::max<std::int64_t>(left, pixels.clip.left);
                  right = std::min<std::int64_t>(right, pixels.clip.right);
                  for (std::int64_t x = left; x < right; ++x) {
                      if (sector.contains(arc.directionTo(x, y)))
                          fillSpan(pixels, y, x, x + 1, pixel);
                  }
              });
}

void drawWholeEllipse(const SPixels &pixels, const SArea &area, std::int64_t penWidth,
                      std::uint32_t pixel) {
    if (penWidth <= 1) {
        outlineRounded(pixels, area, area.width(), area.height(), pixel);
        return;
    }
    visitRing(pixels.clip, area, area.width(), area.height(), penWidth,
              [&](std::int32_t y, std::int64_t left, std::int64_t right) {
                  fillSpan(pixels, y, left, right, pixel);
              });
}

}  // namespace

void drawPlainArc(const SPixels &pixels, const SArea &area, SNativePoint start, SNativePoint end,
                  bool clockwise, std::int64_t penWidth, std::uint32_t pixel) {
    if (area.isEmpty())
        return;
    const SArc arc(area);
    if (clockwise)
        std::swap(start, end);
    const SDirection from = arc.directionTo(start.x, start.y), to = arc.directionTo(end.x, end.y);
    const CSector sector(from, to);
    if (!from.isBefore(to) && !to.isBefore(from)) {
        drawWholeEllipse(pixels, area, penWidth, pixel);
    } else if (penWidth > 1) {
        drawWideArc(pixels, arc, sector, penWidth, pixel);
        fillDisc(pixels, arc.crossing(from), penWidth, pixel);
        fillDisc(pixels, arc.crossing(to), penWidth, pixel);
    } else {
        drawThinArc(pixels, area, sector, clockwise, pixel);
    }
}
