#include "corvel/batch/CBatchReport.h"
#include "corvel/batch/DryRun.h"
#include "corvel/batch/Pictures.h"
#include "corvel/batch/Workers.h"
#include "corvel/commands/PrepareStreams.h"
#include "corvel/console/Errors.h"
#include "corvel/console/Interrupt.h"
#include "corvel/console/Print.h"
#include "corvel/files/FileFacts.h"
#include "corvel/presets/PresetCommand.h"
#include "corvel/render/StripNotes.h"
#include "platform/IsErrorStreamTerminal.h"

#include <cstdlib>
#include <string_view>
#include <system_error>

namespace fs = std::filesystem;

namespace Tessitor::Tool {

namespace {

void printNotes(const std::vector<std::string> &notes, const SRenderCall &call) {
    if (call.quiet)
        return;
    for (const std::string &note : notes)
        printRemark(note);
}

void makeFolder(const fs::path &folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error)
        throw CJobError(folder.string() + ": this folder cannot be made (" + error.message() + ")");
}

bool canShowProgress(const SRenderCall &call) {
    const char *const terminal = std::getenv("TERM");
    const bool erasesLines = terminal == nullptr || std::string_view(terminal) != "dumb";
    return isErrorStreamTerminal() && erasesLines && !call.quiet;
}

std::vector<SProgressJob> jobsToShow(const std::vector<SRenderJob> &jobs) {
    std::vector<SProgressJob> shown;
    for (const SRenderJob &job : jobs) {
        std::error_code none;
        const std::uintmax_t bytes = fs::file_size(job.in, none);
        shown.push_back(
            {job.in.filename().string(), none ? 1.0 : static_cast<double>(bytes) + 1.0});
    }
    return shown;
}

void run(SRenderOutcome &outcome, const CEffectLibrary &library, const CEffectSettings &settings,
         const SRenderCall &call, bool makesFolders, const RenderListener &listener) {
    if (isInterrupted())
        return;
    const SRenderJob &job = outcome.job;
    const auto isDone = [&] { return call.skipExisting && isNewer(job.out, job.in); };
    if (isDone()) {
        outcome.kind = EOutcome::Skipped;
        return;
    }
    try {
        if (!job.problem.empty())
            throw CJobError(job.in.string() + ": " + job.problem);
        if (makesFolders)
            makeFolder(job.out.parent_path());
        outcome.result = render(job, library, settings, call.options, listener);
        outcome.kind = EOutcome::Rendered;
    } catch (const CInterruption &) {
        outcome.kind = EOutcome::Interrupted;
    } catch (const std::exception &error) {
        // Another machine may have written the same output meanwhile.
        outcome.kind = isDone() ? EOutcome::Skipped : EOutcome::Failed;
        outcome.error = reasonOf(error);
    }
}

}  // namespace

int runRender(const SRenderCall &call) {
    requireFileNames(call.files);
    prepareStreams(call.files, call.options);
    const CEffectLibrary library(CEffectLibrary::choose(call.plugin));
    CEffectInstance trial(library);
    requireRenderable(trial, call.options);
    const CEffectSettings settings(call.settings, trial);
    SJobs jobs = jobsFromFiles(call.files, call.options.format, settings.programName());
    if (jobs.jobs.empty()) {
        printNotes({"note: " + *call.files.list + ": lists no files"}, call);
        return 0;
    }
    if (call.plot)
        namePictures(jobs, *call.plot);
    printNotes(settings.notes(), call);
    printNotes(notesOnStrip(trial, call.options), call);
    if (call.dryRun)
        return runDry(jobs, call, settings, library);
    if (call.savePreset)
        savePreset(*call.savePreset, library, settings,
                   call.options.existing == EExisting::Replaced);

    if (jobs.folder)
        makeFolder(*jobs.folder);
    noteInterrupts();
    std::vector<SRenderOutcome> outcomes(jobs.jobs.size());
    for (std::size_t i = 0; i < outcomes.size(); ++i)
        outcomes[i].job = jobs.jobs[i];
    CProgressBar progress(jobsToShow(jobs.jobs), canShowProgress(call));
    CBatchReport report(outcomes, call, settings, library, progress);
    runInParallel(outcomes.size(), call.jobs, [&](std::size_t index) {
        run(outcomes[index], library, settings, call, jobs.folder.has_value(),
            [&](double done) { progress.report(index, done); });
        progress.finish(index, outcomes[index].kind == EOutcome::Rendered);
        report.handleFinished(index);
    });
    return report.finish();
}

}  // namespace Tessitor::Tool
