#pragma once

#include "corvel/console/ProgressLine.h"

#include <chrono>
#include <cstddef>
#include <mutex>
#include <string>
#include <vector>

namespace Tessitor::Tool {

/// A job, as the progress bar shows it.
struct SProgressJob {
    std::string name;
    double weight = 1.0;  // share of the work: the ratio to other jobs counts
};

/// A progress bar on one line of standard error, as wide as the terminal is at that moment. [any
/// thread]
class CProgressBar {
public:
    /// @param shown  false to draw nothing, for standard error that is not a terminal.
    CProgressBar(std::vector<SProgressJob> jobs, bool shown);
    ~CProgressBar();

    /// @param done  how much of that job is done, from 0 to 1.
    void report(std::size_t job, double done);

    /// @param worked  false for a job that took no time, such as one that was skipped. It says
    ///                nothing about the time that others will take.
    void finish(std::size_t job, bool worked);

    /// Removes the line, so that something else can be printed.
    /// @return while this exists, nothing is drawn.
    [[nodiscard]] std::unique_lock<std::mutex> hide();

private:
    using Clock = std::chrono::steady_clock;

    struct SJob {
        SProgressJob facts;
        double done = 0.0;
        bool begun = false, finished = false, worked = true;
    };

    void draw();
    SProgress progress() const;

    std::mutex m_lock;
    std::vector<SJob> m_jobs;
    const bool m_shown;
    const Clock::time_point m_begin = Clock::now();
    Clock::time_point m_lastDrawn;
    bool m_visible = false;
};

}  // namespace Tessitor::Tool
