#include "corvel/console/CProgress.h"

#include <algorithm>
#include <utility>

namespace Tessitor::Tool {

CProgress::CProgress(std::vector<SProgressJob> jobs) {
    for (SProgressJob &job : jobs)
        m_jobs.push_back({std::move(job)});
}

void CProgress::report(std::size_t job, double done) {
    m_jobs[job].begun = true;
    m_jobs[job].done = std::clamp(done, 0.0, 1.0);
}

void CProgress::finish(std::size_t job, bool worked) {
    m_jobs[job].finished = true;
    m_jobs[job].worked = worked;
    m_jobs[job].done = 1.0;
}

SProgress CProgress::after(double elapsedSeconds) const {
    SProgress progress;
    progress.jobs = m_jobs.size();
    double all = 0.0, done = 0.0, worked = 0.0;  // weights
    for (const SJob &job : m_jobs) {
        progress.done += job.finished ? 1 : 0;
        all += job.facts.weight;
        done += job.facts.weight * job.done;
        worked += job.worked ? job.facts.weight * job.done : 0.0;
        if (progress.name.empty() && job.begun && !job.finished)
            progress.name = job.facts.name;
    }
    progress.share = done / all;
    constexpr double tooEarly = 1.0;
    if (elapsedSeconds >= tooEarly && worked > 0.0)
        progress.secondsLeft = elapsedSeconds * (all - done) / worked;
    return progress;
}

}  // namespace Tessitor::Tool
