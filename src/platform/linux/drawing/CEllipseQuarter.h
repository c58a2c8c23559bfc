#pragma once

#include <cstdint>
#include <vector>

/// The upper left quarter of the outline of an ellipse that fills a rectangle: which pixels it
/// takes in each row. The other quarters mirror it.
class CEllipseQuarter {
public:
    /// Rows of larger ellipses are computed one by one where they can be seen, since stepping
    /// through all of them would take too long.
    static constexpr std::int64_t longestSteppedSize = 1 << 16;

    /// From the first to the last column; last is below first in a row without pixels.
    struct SRun {
        std::int64_t first, last;
    };

    /// @param width   at least 1; so is height.
    CEllipseQuarter(std::int64_t width, std::int64_t height);

    /// @param row  0 at the top, below (height + 1) / 2.
    SRun run(std::int64_t row) const;

private:
    void step();
    SRun computed(std::int64_t row) const;

    std::int64_t m_width, m_height;
    std::vector<SRun> m_runs;
};
