#pragma once

#include "corvel/batch/RenderReport.h"
#include "corvel/commands/Commands.h"
#include "corvel/console/CProgressBar.h"

#include <mutex>
#include <vector>

namespace Tessitor::Tool {

/// Prints the outcomes of a command's jobs in their order, each as soon as all earlier ones are
/// printed, and at last what concerns all of them. JSON lines come in the order of ending.
class CBatchReport {
public:
    CBatchReport(const std::vector<SRenderOutcome> &outcomes, const SRenderCall &call,
                 const CEffectSettings &settings, const CEffectLibrary &library,
                 CProgressBar &progress);

    /// [any thread]
    void handleFinished(std::size_t job);

    /// Prints the notes and the last line.
    /// @return the exit status.
    int finish();

private:
    void printOutcome(const SRenderOutcome &outcome);
    void printNotes() const;
    void printLastLine() const;

    std::mutex m_lock;
    std::vector<bool> m_finished;  // by job
    std::size_t m_next = 0;        // job to print
    bool m_describedOne = false;
    const std::vector<SRenderOutcome> &m_outcomes;
    const SRenderCall &m_call;
    const CEffectSettings &m_settings;
    const CEffectLibrary &m_library;
    CProgressBar &m_progress;
};

}  // namespace Tessitor::Tool
