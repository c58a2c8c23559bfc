#pragma once

#include <chrono>
#include <cstddef>
#include <mutex>
#include <string>
#include <vector>

namespace Tessitor::Tool {

/// A progress bar on one line of standard error. [any thread]
class CProgressBar {
public:
    /// @param shown  false to draw nothing, for standard error that is not a terminal.
    CProgressBar(std::size_t jobs, bool shown);
    ~CProgressBar();

    /// @param done  how much of that job is done, from 0 to 1.
    void report(std::size_t job, double done);

    /// Removes the line until the next report, so that something else can be printed.
    void hide();

private:
    std::string line() const;

    std::mutex m_lock;
    std::vector<double> m_done;  // by job
    const bool m_shown;
    bool m_visible = false;
    std::chrono::steady_clock::time_point m_lastDrawn;
};

}  // namespace Tessitor::Tool
