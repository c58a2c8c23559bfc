#include "corvel/console/CProgressBar.h"

#include "platform/ErrorStreamColumns.h"

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

CProgressBar::CProgressBar(std::vector<SProgressJob> jobs, bool shown)
    : m_progress(std::move(jobs)), m_shown(shown) {}

CProgressBar::~CProgressBar() {
    const auto hidden = hide();
}

void CProgressBar::report(std::size_t job, double done) {
    if (!m_shown)
        return;
    const std::lock_guard guard(m_lock);
    m_progress.report(job, done);
    draw();
}

void CProgressBar::finish(std::size_t job, bool worked) {
    if (!m_shown)
        return;
    const std::lock_guard guard(m_lock);
    m_progress.finish(job, worked);
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
    const std::chrono::duration<double> elapsed = now - m_begin;
    const std::string line = progressLine(m_progress.after(elapsed.count()), columns());
    std::fprintf(stderr, "\r%s%s", line.c_str(), eraseRest);
    m_visible = true;
    m_lastDrawn = now;
}

}  // namespace Tessitor::Tool
