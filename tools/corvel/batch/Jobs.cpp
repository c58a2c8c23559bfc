#include "corvel/batch/Jobs.h"

#include "corvel/console/Errors.h"
#include "corvel/files/FileFacts.h"

#include <algorithm>
#include <set>
#include <system_error>

namespace fs = std::filesystem;

namespace Tessitor::Tool {

namespace {

fs::path nameInFolder(const fs::path &folder, const fs::path &in, const SFormatRequest &format) {
    fs::path out = folder / in.filename();
    if (format.container != 0 && !isExtensionOf(format.container, out))
        out.replace_extension(extensionOf(format.container));
    return out;
}

bool isFolder(const fs::path &target) {
    std::error_code ignored;
    return !target.has_filename() || fs::is_directory(target, ignored);
}

void requireNames(const SFileRequest &request) {
    if (request.files.empty() || (request.files.size() == 1 && !request.folder))
        throw CCallError("corvel render needs an input and an output; see corvel render --help");
    const auto isEmpty = [](const std::string &name) { return name.empty(); };
    if (std::any_of(request.files.begin(), request.files.end(), isEmpty) || request.folder == "")
        throw CCallError("a file name is empty");
}

void requireInputsToSurvive(const std::vector<SRenderJob> &jobs) {
    std::set<fs::path> inputs, outputs;
    for (const SRenderJob &job : jobs) {
        inputs.insert(placeOf(job.in));
        if (!outputs.insert(placeOf(job.out)).second)
            throw CCallError(job.out.string() + ": two inputs would be written to this file");
    }
    for (const SRenderJob &job : jobs)
        if (inputs.contains(placeOf(job.out)) || isSameFile(job.in, job.out))
            throw CCallError(job.out.string() + ": is also an input and would be overwritten");
}

}  // namespace

SJobs jobsFromFiles(const SFileRequest &request, const SFormatRequest &format) {
    requireNames(request);
    std::vector<std::string> inputs = request.files;
    SJobs result;
    fs::path target;
    if (request.folder) {
        result.folder = *request.folder;
    } else {
        target = inputs.back();
        inputs.pop_back();
        if (isFolder(target))
            result.folder = target;
        else if (inputs.size() > 1)
            throw CCallError(target.string() + ": several inputs need a folder for their outputs; "
                                               "name it with --out-dir or end it in a slash");
    }
    const std::string problem = result.folder ? "" : problemOfName(target, format);
    if (!problem.empty())
        throw CCallError(target.string() + ": " + problem);
    for (const fs::path in : inputs)
        result.jobs.push_back(
            {in, result.folder ? nameInFolder(*result.folder, in, format) : target});
    requireInputsToSurvive(result.jobs);
    return result;
}

}  // namespace Tessitor::Tool
