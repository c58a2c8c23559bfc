#include "platform/linux/drawing/CEllipseQuarter.h"

#include <algorithm>
#include <cmath>

CEllipseQuarter::CEllipseQuarter(std::int64_t width, std::int64_t height)
    : m_width(width), m_height(height) {
    if (std::max(width, height) <= longestSteppedSize)
        step();
}

CEllipseQuarter::SRun CEllipseQuarter::run(std::int64_t row) const {
    return m_runs.empty() ? computed(row) : m_runs[static_cast<std::size_t>(row)];
}

/// Walks from the left end to the top by error terms: at each pixel the error of the equation
/// b^2 x^2 + a^2 y^2 = a^2 b^2 decides whether x, y or both move on.
/// Source: A. Zingl, A Rasterizing Algorithm for Drawing Curves, 2012.
void CEllipseQuarter::step() {
    const std::int64_t a = m_width - 1, b = m_height - 1, oddHeight = b & 1;
    const std::int64_t moreX = 8 * b * b, moreY = 8 * a * a;
    std::int64_t stepX = 4 * (1 - a) * b * b, stepY = 4 * (oddHeight + 1) * a * a;
    std::int64_t error = stepX + stepY + oddHeight * a * a;

    m_runs.assign(static_cast<std::size_t>((m_height + 1) / 2), {0, -1});
    std::int64_t x = 0, row = b / 2;
    while (2 * x <= a && row >= 0) {
        SRun &run = m_runs[static_cast<std::size_t>(row)];
        if (run.last < run.first)
            run.first = x;
        run.last = x;
        const std::int64_t twice = 2 * error;
        if (twice <= stepY) {
            --row;
            error += stepY += moreY;
        }
        if (twice >= stepX || twice > stepY) {
            ++x;
            error += stepX += moreX;
        }
    }
}

CEllipseQuarter::SRun CEllipseQuarter::computed(std::int64_t row) const {
    const double a = static_cast<double>(m_width - 1) / 2,
                 b = static_cast<double>(m_height - 1) / 2;
    const auto column = [&](std::int64_t y) {
        const double height = b > 0 ? (b - static_cast<double>(y)) / b : 0;
        return std::llround(a - a * std::sqrt(std::max(0.0, 1 - height * height)));
    };
    const std::int64_t first = column(row);
    const std::int64_t last = row == 0 ? (m_width - 1) / 2 : column(row - 1) - 1;
    return {first, std::max(first, last)};
}
