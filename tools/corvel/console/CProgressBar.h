#pragma once

#include "corvel/console/CProgress.h"

#include <chrono>
#include <cstddef>
#include <mutex>
#include <vector>

namespace Tessitor::Tool {

/// A progress bar on one line of standard error, as wide as the terminal is at that moment. [any
/// thread]
class CProgressBar {
public:
    /// @param shown  false to draw nothing, for standard error that is not a terminal.
    CProgressBar(std::vector<SProgressJob> jobs, bool shown);
    ~CProgressBar();

    void report(std::size_t job, double done);  ///< see CProgress
    void finish(std::size_t job, bool worked);  ///< see CProgress

    /// Removes the line, so that something else can be printed.
    /// @return while this exists, nothing is drawn.
    [[nodiscard]] std::unique_lock<std::mutex> hide();

private:
    using Clock = std::chrono::steady_clock;

    void draw();

    std::mutex m_lock;
    CProgress m_progress;
    const bool m_shown;
    const Clock::time_point m_begin = Clock::now();
    Clock::time_point m_lastDrawn;
    bool m_visible = false;
};

}  // namespace Tessitor::Tool
