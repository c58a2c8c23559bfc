#include "corvel/CProgressBar.h"
#include "corvel/Commands.h"
#include "corvel/Interrupt.h"
#include "corvel/Jobs.h"
#include "corvel/Print.h"
#include "corvel/RenderReport.h"
#include "corvel/Workers.h"
#include "platform/IsErrorStreamTerminal.h"

#include <algorithm>
#include <mutex>
#include <utility>

namespace Tessitor::Tool {

namespace {

/// Prints the outcomes in the order of the jobs, each as soon as all earlier ones are printed.
class COutcomePrinter {
public:
    COutcomePrinter(std::size_t jobs, const SRenderCall &call, const CEffectSettings &settings,
                    CProgressBar &progress)
        : m_finished(jobs), m_call(call), m_settings(settings), m_progress(progress) {}

    void handleFinished(const std::vector<SRenderOutcome> &outcomes, std::size_t index) {
        const std::lock_guard guard(m_lock);
        m_finished[index] = true;
        for (; m_next < m_finished.size() && m_finished[m_next]; ++m_next) {
            m_progress.hide();
            printOutcome(outcomes[m_next]);
        }
    }

private:
    void printOutcome(const SRenderOutcome &outcome) {
        if (!outcome.error.empty()) {
            printRemark(outcome.error);
            return;
        }
        for (const std::string &line : remarks(outcome, m_call.options))
            printRemark(line);
        if (m_call.json)
            return;
        if (std::exchange(m_describedOne, true))
            print("\n");
        print(describe(outcome, m_settings));
    }

    std::mutex m_lock;
    std::vector<bool> m_finished;
    std::size_t m_next = 0;  // job to print
    bool m_describedOne = false;
    const SRenderCall &m_call;
    const CEffectSettings &m_settings;
    CProgressBar &m_progress;
};

}  // namespace

int runRender(const SRenderCall &call) {
    const std::vector<SRenderJob> jobs = jobsFromFiles(call.files, call.options.format);
    const CEffectLibrary library(CEffectLibrary::choose(call.plugin));
    CEffectInstance trial(library);
    requireRenderable(trial, call.options);
    const CEffectSettings settings(call.settings, trial);

    if (jobs.size() > 1)
        std::filesystem::create_directories(call.files.back());
    noteInterrupts();
    std::vector<SRenderOutcome> outcomes(jobs.size());
    CProgressBar progress(jobs.size(), isErrorStreamTerminal());
    COutcomePrinter printer(jobs.size(), call, settings, progress);
    runOnAllCores(jobs.size(), [&](std::size_t index) {
        SRenderOutcome &outcome = outcomes[index];
        outcome.job = jobs[index];
        try {
            outcome.result = render(outcome.job, library, settings, call.options,
                                    [&](double done) { progress.report(index, done); });
        } catch (const std::exception &error) {
            outcome.error = error.what();
        }
        progress.report(index, 1.0);
        printer.handleFinished(outcomes, index);
    });

    if (call.json)
        printJson(toJson(outcomes, settings, library));
    const bool failed = std::any_of(outcomes.begin(), outcomes.end(),
                                    [](const auto &outcome) { return !outcome.error.empty(); });
    return failed ? 1 : 0;
}

}  // namespace Tessitor::Tool
