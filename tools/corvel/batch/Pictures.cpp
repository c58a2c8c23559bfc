#include "corvel/batch/Pictures.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Text.h"
#include "corvel/files/FileFacts.h"
#include "corvel/plot/PictureFile.h"

namespace Tessitor::Tool {

namespace {

bool isEnding(const std::string &request) {
    return equalInAnyCapitals(request, "svg") || equalInAnyCapitals(request, "png");
}

void requireInputsToSurvive(const SJobs &jobs) {
    for (const SRenderJob &drawn : jobs.jobs)
        for (const SRenderJob &job : jobs.jobs)
            if (placeOf(drawn.picture) == placeOf(job.in) ||
                placeOf(drawn.picture) == placeOf(job.out))
                throw CCallError(drawn.picture.string() +
                                 ": is also an input or an output and would be overwritten");
}

}  // namespace

void namePictures(SJobs &jobs, const std::string &request) {
    const bool isBesideOutputs = isEnding(request);
    if (!isBesideOutputs && jobs.jobs.size() > 1)
        throw CCallError("--plot: several inputs need a picture each; --plot svg or --plot png "
                         "puts it beside the output");
    for (SRenderJob &job : jobs.jobs) {
        job.picture = isBesideOutputs ? job.out.string() + "." + request : request;
        pictureFormatOf(job.picture);
    }
    requireInputsToSurvive(jobs);
}

}  // namespace Tessitor::Tool
