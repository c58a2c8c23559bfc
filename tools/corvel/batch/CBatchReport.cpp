#include "corvel/batch/CBatchReport.h"

#include "corvel/audio/StandardStream.h"
#include "corvel/batch/LoudnessReport.h"
#include "corvel/console/Interrupt.h"
#include "corvel/console/Print.h"

#include <utility>

namespace Tessitor::Tool {

CBatchReport::CBatchReport(const std::vector<SRenderOutcome> &outcomes, const SRenderCall &call,
                           const CEffectSettings &settings, const CEffectLibrary &library,
                           CProgressBar &progress)
    : m_finished(outcomes.size()), m_outcomes(outcomes), m_call(call), m_settings(settings),
      m_library(library), m_progress(progress) {}

void CBatchReport::handleFinished(std::size_t job) {
    const std::lock_guard guard(m_lock);
    m_finished[job] = true;
    const auto hidden = m_progress.hide();
    if (m_call.json)
        printJsonLine(toJson(m_outcomes[job], m_settings, m_library));
    for (; m_next < m_finished.size() && m_finished[m_next]; ++m_next)
        printOutcome(m_outcomes[m_next]);
}

void CBatchReport::printOutcome(const SRenderOutcome &outcome) {
    if (outcome.kind == EOutcome::Failed)
        printRemark(outcome.error);
    if (outcome.kind != EOutcome::Rendered || m_call.quiet)
        return;
    for (const std::string &line : warnings(outcome, m_call.options))
        printRemark(line);
    if (m_call.json)
        return;
    if (std::exchange(m_describedOne, true))
        print("\n");
    print(describe(outcome, m_settings, m_call.options));
    if (m_call.verbose)
        print(describeProcessing(outcome.result, m_call.options, m_library));
}

int CBatchReport::finish() {
    // The reader of the sound had enough, as "head" often has: nothing to report.
    if (isOutputAbandoned() && !m_outcomes.empty() && isStandardStream(m_outcomes.front().job.out))
        return interruptionStatus();
    if (!m_call.quiet)
        printNotes();
    printLastLine();
    if (isInterrupted())
        return interruptionStatus();
    return count(m_outcomes, EOutcome::Failed) > 0 ? 1 : 0;
}

void CBatchReport::printNotes() const {
    for (const std::string &line : notes(m_outcomes, m_call.options))
        printRemark(line);
    for (const std::string &line : notesOnLoudness(m_outcomes, m_call.options))
        printRemark(line);
}

void CBatchReport::printLastLine() const {
    const std::size_t rendered = count(m_outcomes, EOutcome::Rendered);
    if (isInterrupted()) {
        printRemark(interruptionText() + ", " +
                    std::to_string(rendered + count(m_outcomes, EOutcome::Skipped)) + " of " +
                    std::to_string(m_outcomes.size()) + " done");
    } else if (m_outcomes.size() == 1 || m_call.quiet) {
        return;
    } else if (rendered < m_outcomes.size()) {
        printRemark(summary(m_outcomes));
    } else if (!m_call.json) {
        print(std::string("\n").append(summary(m_outcomes)).append("\n"));
    }
}

}  // namespace Tessitor::Tool
