#pragma once

#include <chrono>
#include <cstddef>
#include <mutex>
#include <string>
#include <vector>

namespace Tessitor::Tool {

/// A line on standard error that shows how far the work is. [any thread]
class CProgressBar {
public:
    /// @param shown  false to show nothing at all, as in a pipe.
    CProgressBar(std::size_t jobs, bool shown);
    ~CProgressBar();

    /// @param done  of that job, from 0 to 1.
    void report(std::size_t job, double done);

    /// Takes the line away, until the next report, so that something can be printed.
    void hide();

private:
    std::string line() const;

    std::mutex m_lock;
    std::vector<double> m_done;  // of each job
    const bool m_shown;
    bool m_visible = false;
    std::chrono::steady_clock::time_point m_lastDrawn;
};

}  // namespace Tessitor::Tool
