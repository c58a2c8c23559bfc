#include "corvel/console/CProgressBar.h"

#include <algorithm>
#include <cstdio>
#include <numeric>

namespace Tessitor::Tool {

namespace {

constexpr std::chrono::milliseconds betweenDrawings{50};
constexpr std::size_t barWidth = 40;
constexpr const char *eraseLine = "\r\x1b[K";

}  // namespace

CProgressBar::CProgressBar(std::size_t jobs, bool shown) : m_done(jobs), m_shown(shown) {}

CProgressBar::~CProgressBar() {
    hide();
}

void CProgressBar::report(std::size_t job, double done) {
    if (!m_shown)
        return;
    const std::lock_guard guard(m_lock);
    m_done[job] = std::clamp(done, 0.0, 1.0);
    const auto now = std::chrono::steady_clock::now();
    if (m_visible && now - m_lastDrawn < betweenDrawings)
        return;
    std::fprintf(stderr, "\r%s", line().c_str());
    m_visible = true;
    m_lastDrawn = now;
}

void CProgressBar::hide() {
    const std::lock_guard guard(m_lock);
    if (m_visible)
        std::fputs(eraseLine, stderr);
    m_visible = false;
}

std::string CProgressBar::line() const {
    const auto jobs = static_cast<double>(m_done.size());
    const double done = std::accumulate(m_done.begin(), m_done.end(), 0.0) / jobs;
    const auto filled = static_cast<std::size_t>(done * barWidth);
    std::string text = "[";
    text.append(filled, '#').append(barWidth - filled, '-').append("] ");
    text += std::to_string(static_cast<int>(done * 100.0)) + "%";
    if (m_done.size() > 1)
        text += "  " + std::to_string(std::count(m_done.begin(), m_done.end(), 1.0)) + " of " +
                std::to_string(m_done.size()) + " files";
    return text;
}

}  // namespace Tessitor::Tool
