#include "platform/linux/drawing/RoundedShapes.h"

#include "platform/linux/drawing/CEllipseQuarter.h"

#include <algorithm>

namespace {

/// The left half of the outline in each row; the right half mirrors it.
class CRoundedRows {
public:
    CRoundedRows(const SArea &area, std::int64_t width, std::int64_t height)
        : m_area(area), m_width(std::min(width, area.width())),
          m_height(std::min(height, area.height())), m_isRound(m_width > 2 && m_height > 2),
          m_quarter(m_isRound ? m_width : 1, m_isRound ? m_height : 1) {}

    /// Columns from the left edge; last is below first in a row without pixels.
    CEllipseQuarter::SRun run(std::int64_t y) const {
        const std::int64_t row = std::min(y - m_area.top, m_area.bottom - 1 - y);
        if (!m_isRound)
            return {0, row == 0 ? m_area.width() - 1 : 0};
        if (row >= (m_height + 1) / 2)
            return {0, 0};
        const CEllipseQuarter::SRun run = m_quarter.run(row);
        // At the middle of the ellipse, the run goes on to the other half.
        return run.last == (m_width - 1) / 2
                   ? CEllipseQuarter::SRun{run.first, m_area.width() - 1 - run.first}
                   : run;
    }

private:
    SArea m_area;
    std::int64_t m_width, m_height;
    bool m_isRound;
    CEllipseQuarter m_quarter;
};

}  // namespace

void fillRounded(const SPixels &pixels, const SArea &area, std::int64_t width, std::int64_t height,
                 std::uint32_t pixel) {
    const SNativeRect visible = intersection(pixels.clip, area);
    if (SArea(visible).isEmpty())
        return;
    const CRoundedRows rows(area, width, height);
    for (std::int32_t y = visible.top; y < visible.bottom; ++y) {
        const auto run = rows.run(y);
        if (run.first <= run.last)
            fillSpan(pixels, y, area.left + run.first, area.right - run.first, pixel);
    }
}

void outlineRounded(const SPixels &pixels, const SArea &area, std::int64_t width,
                    std::int64_t height, std::uint32_t pixel) {
    const SNativeRect visible = intersection(pixels.clip, area);
    if (SArea(visible).isEmpty())
        return;
    const CRoundedRows rows(area, width, height);
    for (std::int32_t y = visible.top; y < visible.bottom; ++y) {
        const auto run = rows.run(y);
        fillSpan(pixels, y, area.left + run.first, area.left + run.last + 1, pixel);
        fillSpan(pixels, y, area.right - 1 - run.last, area.right - run.first, pixel);
    }
}

void visitRing(
    const SNativeRect &clip, const SArea &area, std::int64_t width, std::int64_t height,
    std::int64_t penWidth,
    const std::function<void(std::int32_t y, std::int64_t left, std::int64_t right)> &draw) {
    const std::int64_t before = penWidth / 2, after = penWidth - before - 1;
    const SArea outer(area.left - before, area.top - before, area.right + after,
                      area.bottom + after);
    const SArea inner(area.left + after + 1, area.top + after + 1, area.right - before - 1,
                      area.bottom - before - 1);
    const SNativeRect visible = intersection(clip, outer);
    if (SArea(visible).isEmpty())
        return;
    const std::int64_t outerWidth = std::min(width, area.width()) + penWidth - 1;
    const std::int64_t outerHeight = std::min(height, area.height()) + penWidth - 1;
    const CRoundedRows outerRows(outer, outerWidth, outerHeight);
    const bool hasHole = !inner.isEmpty();
    const CRoundedRows innerRows(hasHole ? inner : outer,
                                 std::max<std::int64_t>(outerWidth - 2 * penWidth, 0),
                                 std::max<std::int64_t>(outerHeight - 2 * penWidth, 0));
    for (std::int32_t y = visible.top; y < visible.bottom; ++y) {
        const auto outside = outerRows.run(y);
        if (outside.first > outside.last)
            continue;
        const std::int64_t left = outer.left + outside.first, right = outer.right - outside.first;
        const auto hole = hasHole && y >= inner.top && y < inner.bottom
                              ? innerRows.run(y)
                              : CEllipseQuarter::SRun{0, -1};
        if (hole.first <= hole.last) {
            draw(y, left, inner.left + hole.first);
            draw(y, inner.right - hole.first, right);
        } else {
            draw(y, left, right);
        }
    }
}
