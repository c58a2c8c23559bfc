#pragma once

#include <chrono>

namespace Tessitor::Tool {

/// Adds up the time that pieces of work take, if anybody wants to know it.
class CStopwatch {
public:
    explicit CStopwatch(bool wanted) : m_wanted(wanted) {}

    template <typename Work>
    void measure(Work &&work) {
        if (!m_wanted) {
            work();
            return;
        }
        const auto begin = std::chrono::steady_clock::now();
        work();
        m_total += std::chrono::steady_clock::now() - begin;
    }

    double seconds() const { return m_total.count(); }  ///< 0 if not wanted

private:
    bool m_wanted;
    std::chrono::duration<double> m_total{};
};

}  // namespace Tessitor::Tool
