#include "corvel/console/CProgressBar.h"

#include "platform/ErrorStreamColumns.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace Tessitor::Tool {

namespace {

constexpr std::chrono::milliseconds betweenDrawings{50};
constexpr const char *eraseRest = "\x1b[K";

std::size_t columns() {
    constexpr int usualColumns = 80;
    const int known = errorStreamColumns();
    // In the last column, some terminals would already begin the next line.
    return static_cast<std::size_t>(known > 0 ? known : usualColumns) - 1;
}

}  // namespace

CProgressBar::CProgressBar(std::vector<SProgressJob> jobs, bool shown) : m_shown(shown) {
    for (SProgressJob &job : jobs)
        m_jobs.push_back({std::move(job)});
}

CProgressBar::~CProgressBar() {
    const auto hidden = hide();
}

void CProgressBar::report(std::size_t job, double done) {
    if (!m_shown)
        return;
    const std::lock_guard guard(m_lock);
    m_jobs[job].begun = true;
    m_jobs[job].done = std::clamp(done, 0.0, 1.0);
    draw();
}

void CProgressBar::finish(std::size_t job, bool worked) {
    if (!m_shown)
        return;
    const std::lock_guard guard(m_lock);
    m_jobs[job].finished = true;
    m_jobs[job].worked = worked;
    m_jobs[job].done = 1.0;
    draw();
}

std::unique_lock<std::mutex> CProgressBar::hide() {
    std::unique_lock guard(m_lock);
    if (std::exchange(m_visible, false))
        std::fprintf(stderr, "\r%s", eraseRest);
    return guard;
}

void CProgressBar::draw() {
    const Clock::time_point now = Clock::now();
    if (m_visible && now - m_lastDrawn < betweenDrawings)
        return;
    std::fprintf(stderr, "\r%s%s", progressLine(progress(), columns()).c_str(), eraseRest);
    m_visible = true;
    m_lastDrawn = now;
}

SProgress CProgressBar::progress() const {
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
    constexpr std::chrono::seconds tooEarly{1};
    const std::chrono::duration<double> elapsed = Clock::now() - m_begin;
    if (elapsed >= tooEarly && worked > 0.0)
        progress.secondsLeft = elapsed.count() * (all - done) / worked;
    return progress;
}

}  // namespace Tessitor::Tool
