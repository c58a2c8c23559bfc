#include "corvel/batch/DryRun.h"

#include "corvel/audio/StandardStream.h"
#include "corvel/batch/RenderReport.h"
#include "corvel/console/Errors.h"
#include "corvel/console/Print.h"
#include "corvel/console/Printable.h"
#include "corvel/files/FileFacts.h"

#include <system_error>

namespace fs = std::filesystem;

namespace Tessitor::Tool {

namespace {

void requireFeasible(const SRenderJob &job, const SRenderCall &call, bool makesFolders) {
    if (!job.problem.empty())
        throw CJobError(job.in.string() + ": " + job.problem);
    // What arrives is only known when it is there.
    if (!isStandardStream(job.in))
        openInput(job, call.options);
    if (isStandardStream(job.out))
        return;
    std::error_code ignored;
    if (!makesFolders || fs::exists(fs::symlink_status(job.out, ignored)))
        CPendingFile::requireWritable(job.out, call.options.existing);
}

SRenderOutcome examine(const SRenderJob &job, const SRenderCall &call, bool makesFolders) {
    SRenderOutcome outcome{job, EOutcome::Planned, {}, {}};
    try {
        if (call.skipExisting && isNewer(job.out, job.in))
            outcome.kind = EOutcome::Skipped;
        else
            requireFeasible(job, call, makesFolders);
    } catch (const std::exception &error) {
        outcome.kind = EOutcome::Failed;
        outcome.error = reasonOf(error);
    }
    return outcome;
}

std::string describe(const SRenderOutcome &outcome) {
    std::error_code ignored;
    const bool skipped = outcome.kind == EOutcome::Skipped;
    const bool replaced = !skipped && fs::exists(outcome.job.out, ignored);
    return printable(nameOfInput(outcome.job.in)) + " -> " +
           printable(nameOfOutput(outcome.job.out)) +
           (skipped    ? "  (skipped: newer than its input)"
            : replaced ? "  (replaces the existing file)"
                       : "") +
           "\n";
}

std::string sum(const std::vector<SRenderOutcome> &outcomes) {
    std::string text = std::to_string(count(outcomes, EOutcome::Planned)) + " of " +
                       std::to_string(outcomes.size()) + " files would be rendered";
    if (const std::size_t skipped = count(outcomes, EOutcome::Skipped))
        text += ", " + std::to_string(skipped) + " skipped";
    if (const std::size_t failed = count(outcomes, EOutcome::Failed))
        text += ", " + std::to_string(failed) + " would fail";
    return text;
}

}  // namespace

int runDry(const SJobs &jobs, const SRenderCall &call, const CEffectSettings &settings,
           const CEffectLibrary &library) {
    std::vector<SRenderOutcome> outcomes;
    for (const SRenderJob &job : jobs.jobs) {
        const SRenderOutcome &outcome =
            outcomes.emplace_back(examine(job, call, jobs.folder.has_value()));
        if (outcome.kind == EOutcome::Failed)
            printRemark(outcome.error);
        if (call.json)
            printJsonLine(toJson(outcome, settings, library));
        else if (outcome.kind != EOutcome::Failed && !call.quiet)
            print(describe(outcome));
    }
    if (!call.json && !call.quiet)
        print(sum(outcomes) + "\n");
    return count(outcomes, EOutcome::Failed) > 0 ? 1 : 0;
}

}  // namespace Tessitor::Tool
