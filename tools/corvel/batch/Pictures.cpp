#include "corvel/batch/Pictures.h"

#include "corvel/audio/StandardStream.h"
#include "corvel/console/Errors.h"
#include "corvel/console/Text.h"
#include "corvel/files/FileFacts.h"
#include "corvel/plot/PictureFile.h"

#include <filesystem>
#include <set>

namespace Tessitor::Tool {

namespace {

bool isEnding(const std::string &request) {
    return equalInAnyCapitals(request, "svg") || equalInAnyCapitals(request, "png");
}

void requireInputsToSurvive(const SJobs &jobs) {
    std::set<std::filesystem::path> taken;
    for (const SRenderJob &job : jobs.jobs) {
        taken.insert(placeOf(job.in));
        taken.insert(placeOf(job.out));
    }
    for (const SRenderJob &job : jobs.jobs) {
        if (taken.contains(placeOf(job.picture)))
            throw CCallError(job.picture.string() +
                             ": is also an input or an output and would be overwritten");
    }
}

}  // namespace

void namePictures(SJobs &jobs, const std::string &request) {
    const bool isBesideOutputs = isEnding(request);
    if (!isBesideOutputs && jobs.jobs.size() > 1)
        throw CCallError("--plot: several inputs need a picture each; --plot svg or --plot png "
                         "puts it beside the output");
    if (isBesideOutputs && isStandardStream(jobs.jobs.front().out))
        throw CCallError("--plot: standard output has no name for the picture; use a file name");
    for (SRenderJob &job : jobs.jobs) {
        job.picture = isBesideOutputs ? job.out.string() + "." + request : request;
        pictureFormatOf(job.picture);
    }
    requireInputsToSurvive(jobs);
}

}  // namespace Tessitor::Tool
