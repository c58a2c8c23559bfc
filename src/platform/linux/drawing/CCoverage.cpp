#include "platform/linux/drawing/CCoverage.h"

#include <algorithm>
#include <cmath>

CCoverage::CCoverage(const SNativeRect &area, const SOutline &outline)
    : m_area(area), m_width(static_cast<std::size_t>(area.right - area.left)),
      m_height(static_cast<std::size_t>(area.bottom - area.top)),
      m_collected((m_width + 2) * m_height), m_covered(m_width * m_height) {
    for (const SOutline::Polygon &polygon : outline.polygons)
        for (std::size_t i = 0; i < polygon.size(); ++i)
            addEdge(polygon[i], polygon[(i + 1) % polygon.size()]);
    sumRows();
}

void CCoverage::addEdge(SOutline::SPoint from, SOutline::SPoint to) {
    const double direction = from.y < to.y ? 1 : -1;
    if (direction < 0)
        std::swap(from, to);
    const double slope = (to.x - from.x) / (to.y - from.y);  // not used if the edge is level
    const double top = std::max(from.y - m_area.top, 0.0);
    const double bottom = std::min(to.y - m_area.top, static_cast<double>(m_height));
    const auto at = [&](double y) {
        return from.x + (y + m_area.top - from.y) * slope - m_area.left;
    };
    for (double y = top; y < bottom;) {
        const double next = std::min(std::floor(y) + 1, bottom);
        addInRow(&m_collected[static_cast<std::size_t>(y) * (m_width + 2)], at(y), at(next),
                 direction * (next - y));
        y = next;
    }
}

void CCoverage::addInRow(float *row, double from, double to, double height) {
    const double width = static_cast<double>(m_width);
    const double left = std::clamp(std::min(from, to), 0.0, width);
    const double right = std::clamp(std::max(from, to), 0.0, width);
    const auto lastColumn = static_cast<int>(right);
    for (auto column = static_cast<int>(left); column <= lastColumn; ++column) {
        const double begin = std::max<double>(left, column);
        const double end = std::min<double>(right, column + 1);
        const double share = right > left ? height * (end - begin) / (right - left) : height;
        const double part = (begin + end) / 2 - column;  // of the pixel left of the edge
        float *cell = row + column;
        cell[0] += static_cast<float>(share * (1 - part));
        cell[1] += static_cast<float>(share * part);
    }
}

void CCoverage::sumRows() {
    for (std::size_t y = 0; y < m_height; ++y) {
        const float *collected = &m_collected[y * (m_width + 2)];
        float sum = 0;
        for (std::size_t x = 0; x < m_width; ++x) {
            sum += collected[x];
            // Even-odd: what two polygons cover is empty again.
            const float twice = std::fmod(std::fabs(sum), 2.0f);
            const float covered = twice > 1 ? 2 - twice : twice;
            m_covered[y * m_width + x] = static_cast<std::uint8_t>(std::lround(covered * 255));
        }
    }
}
