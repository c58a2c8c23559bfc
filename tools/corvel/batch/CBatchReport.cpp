#include "corvel/batch/CBatchReport.h"

#include "corvel/console/Interrupt.h"
#include "corvel/console/Print.h"

#include <utility>

namespace Tessitor::Tool {

CBatchReport::CBatchReport(const std::vector<SRenderOutcome> &outcomes, const SRenderCall &call,
                           const CEffectSettings &settings, CProgressBar &progress)
    : m_finished(outcomes.size()), m_outcomes(outcomes), m_call(call), m_settings(settings),
      m_progress(progress) {}

void CBatchReport::handleFinished(std::size_t job) {
    const std::lock_guard guard(m_lock);
    m_finished[job] = true;
    for (; m_next < m_finished.size() && m_finished[m_next]; ++m_next) {
        m_progress.hide();
        printOutcome(m_outcomes[m_next]);
    }
}

void CBatchReport::printOutcome(const SRenderOutcome &outcome) {
    if (outcome.kind == EOutcome::Failed)
        printRemark(outcome.error);
    if (outcome.kind != EOutcome::Rendered)
        return;
    for (const std::string &line : warnings(outcome, m_call.options))
        printRemark(line);
    if (m_call.json)
        return;
    if (std::exchange(m_describedOne, true))
        print("\n");
    print(describe(outcome, m_settings));
}

int CBatchReport::finish(const CEffectLibrary &library) {
    for (const std::string &line : notes(m_outcomes, m_call.options))
        printRemark(line);
    if (m_call.json)
        printJson(toJson(m_outcomes, m_settings, library));
    printLastLine();
    if (isInterrupted())
        return interruptionStatus();
    return count(m_outcomes, EOutcome::Failed) > 0 ? 1 : 0;
}

void CBatchReport::printLastLine() const {
    const std::size_t rendered = count(m_outcomes, EOutcome::Rendered);
    if (isInterrupted()) {
        printRemark(interruptionText() + ", " +
                    std::to_string(rendered + count(m_outcomes, EOutcome::Skipped)) + " of " +
                    std::to_string(m_outcomes.size()) + " done");
    } else if (m_outcomes.size() > 1 && rendered < m_outcomes.size()) {
        printRemark(summary(m_outcomes));
    } else if (m_outcomes.size() > 1 && !m_call.json) {
        print(std::string("\n").append(summary(m_outcomes)).append("\n"));
    }
}

}  // namespace Tessitor::Tool
