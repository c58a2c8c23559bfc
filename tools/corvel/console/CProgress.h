#pragma once

#include "corvel/console/ProgressLine.h"

#include <cstddef>
#include <string>
#include <vector>

namespace Tessitor::Tool {

/// A job whose progress is shown.
struct SProgressJob {
    std::string name;
    double weight = 1.0;  // share of the work: the ratio to other jobs counts
};

/// Adds up the progress of several jobs and estimates the time that is left.
class CProgress {
public:
    explicit CProgress(std::vector<SProgressJob> jobs);

    /// @param done  how much of that job is done, from 0 to 1.
    void report(std::size_t job, double done);

    /// @param worked  false for a job that took no time, such as one that was skipped. It says
    ///                nothing about the time that others will take.
    void finish(std::size_t job, bool worked);

    /// @param elapsedSeconds  since the start; in the first second no time left is estimated.
    SProgress after(double elapsedSeconds) const;

private:
    struct SJob {
        SProgressJob facts;
        double done = 0.0;
        bool begun = false, finished = false, worked = true;
    };

    std::vector<SJob> m_jobs;
};

}  // namespace Tessitor::Tool
