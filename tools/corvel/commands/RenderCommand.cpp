#include "corvel/batch/CBatchReport.h"
#include "corvel/batch/Workers.h"
#include "corvel/console/Errors.h"
#include "corvel/console/Interrupt.h"
#include "corvel/console/Print.h"
#include "corvel/files/FileFacts.h"
#include "corvel/presets/PresetCommand.h"
#include "corvel/render/StripNotes.h"
#include "platform/IsErrorStreamTerminal.h"

#include <system_error>

namespace Tessitor::Tool {

namespace {

void printNotes(const std::vector<std::string> &notes) {
    for (const std::string &note : notes)
        printRemark(note);
}

void makeFolder(const std::filesystem::path &folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error)
        throw CJobError(folder.string() + ": this folder cannot be made (" + error.message() + ")");
}

void run(SRenderOutcome &outcome, const CEffectLibrary &library, const CEffectSettings &settings,
         const SRenderCall &call, const RenderListener &listener) {
    if (isInterrupted())
        return;
    if (call.skipExisting && isNewer(outcome.job.out, outcome.job.in)) {
        outcome.kind = EOutcome::Skipped;
        return;
    }
    try {
        outcome.result = render(outcome.job, library, settings, call.options, listener);
        outcome.kind = EOutcome::Rendered;
    } catch (const CInterruption &) {
        outcome.kind = EOutcome::Interrupted;
    } catch (const std::exception &error) {
        outcome.kind = EOutcome::Failed;
        outcome.error = reasonOf(error);
    }
}

}  // namespace

int runRender(const SRenderCall &call) {
    const SJobs jobs = jobsFromFiles(call.files, call.options.format);
    const CEffectLibrary library(CEffectLibrary::choose(call.plugin));
    CEffectInstance trial(library);
    requireRenderable(trial, call.options);
    const CEffectSettings settings(call.settings, trial);
    printNotes(settings.notes());
    printNotes(notesOnStrip(trial, call.options));
    if (call.savePreset)
        savePreset(*call.savePreset, library, settings,
                   call.options.existing == EExisting::Replaced);

    if (jobs.folder)
        makeFolder(*jobs.folder);
    noteInterrupts();
    std::vector<SRenderOutcome> outcomes(jobs.jobs.size());
    for (std::size_t i = 0; i < outcomes.size(); ++i)
        outcomes[i].job = jobs.jobs[i];
    CProgressBar progress(outcomes.size(), isErrorStreamTerminal());
    CBatchReport report(outcomes, call, settings, progress);
    runOnAllCores(outcomes.size(), [&](std::size_t index) {
        run(outcomes[index], library, settings, call,
            [&](double done) { progress.report(index, done); });
        progress.report(index, 1.0);
        report.handleFinished(index);
    });
    progress.hide();
    return report.finish(library);
}

}  // namespace Tessitor::Tool
