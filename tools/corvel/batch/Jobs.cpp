#include "corvel/batch/Jobs.h"

#include "corvel/audio/StandardStream.h"
#include "corvel/batch/CNamePattern.h"
#include "corvel/batch/Inputs.h"
#include "corvel/batch/ListedNames.h"
#include "corvel/console/Errors.h"
#include "corvel/files/FileFacts.h"
#include "corvel/files/ReadAll.h"

#include <algorithm>
#include <map>
#include <set>
#include <system_error>

namespace fs = std::filesystem;

namespace Tessitor::Tool {

namespace {

bool isFolder(const fs::path &target) {
    std::error_code ignored;
    if (isStandardStream(target))
        return false;
    return !target.has_filename() || fs::is_directory(target, ignored);
}

// A stream holds one sound only, and has no name from which that of the output could be made.
void requireStreamsAlone(const std::vector<std::string> &inputs, const fs::path &target) {
    const bool readsStream = std::find(inputs.begin(), inputs.end(), "-") != inputs.end();
    if (readsStream && (inputs.size() > 1 || target.empty()))
        throw CCallError("standard input must be the only input, and its output needs a name");
    if (isStandardStream(target) && inputs.size() > 1)
        throw CCallError("only one input can be written to standard output");
}

// Where the outputs go: to a folder or to one file.
struct STarget {
    std::optional<fs::path> folder;
    fs::path file;
};

// @param inputs  loses the target if it is the last of the names.
STarget takeTarget(const SFileRequest &request, std::vector<std::string> &inputs) {
    if (request.folder)
        return {*request.folder, {}};
    const fs::path last = inputs.back();
    inputs.pop_back();
    if (isFolder(last))
        return {last, {}};
    requireStreamsAlone(inputs, last);
    if (inputs.size() != 1 || request.list)
        throw CCallError(last.string() + ": several inputs need a folder for their outputs; name "
                                         "it with --out-dir or end it in a slash");
    const char *const option = request.recursive ? "--recursive"
                               : request.name    ? "--name"
                                                 : nullptr;
    if (option != nullptr) {
        throw CCallError(last.string() + ": " + option +
                         " needs a folder for the outputs; name it with --out-dir or end it in a "
                         "slash");
    }
    return {{}, last};
}

std::vector<SInput> inputsOf(const SFileRequest &request, std::vector<std::string> names,
                             const STarget &target) {
    if (request.list) {
        if (request.list == "-" && std::find(names.begin(), names.end(), "-") != names.end())
            throw CCallError("--list: standard input cannot also be an input");
        for (std::string &name : listedNames(readAll(*request.list)))
            names.push_back(std::move(name));
    }
    requireStreamsAlone(names, target.file);
    std::vector<SInput> inputs =
        request.recursive ? filesIn(names, target.folder) : filesNamed(names);
    if (inputs.empty() && !names.empty())
        throw CJobError(names.front() + ": contains no audio files");
    return inputs;
}

void requireEnding(const std::string &where, const fs::path &file, const SFormatRequest &format) {
    const std::string problem = problemOfName(file, format);
    if (!problem.empty())
        throw CCallError(where + ": " + problem);
}

std::string endingFor(const fs::path &in, const SFormatRequest &format) {
    if (format.container != 0 && !isExtensionOf(format.container, in))
        return extensionOf(format.container);
    return in.extension().string();
}

bool usesStream(const std::vector<SRenderJob> &jobs) {
    return std::any_of(jobs.begin(), jobs.end(), [](const SRenderJob &job) {
        return isStandardStream(job.in) || isStandardStream(job.out);
    });
}

void requireInputsToSurvive(const std::vector<SRenderJob> &jobs) {
    std::set<fs::path> inputs;
    std::map<fs::path, fs::path> outputs;  // and their inputs
    for (const SRenderJob &job : jobs) {
        inputs.insert(placeOf(job.in));
        const auto [other, isNew] = outputs.try_emplace(placeOf(job.out), job.in);
        if (!isNew)
            throw CCallError(job.out.string() + ": would be written from two inputs, " +
                             other->second.string() + " and " + job.in.string());
    }
    for (const SRenderJob &job : jobs)
        if (inputs.contains(placeOf(job.out)) || isSameFile(job.in, job.out))
            throw CCallError(job.out.string() + ": is also an input and would be overwritten");
}

}  // namespace

void requireFileNames(const SFileRequest &request) {
    const std::size_t inputs = request.files.size() + (request.list ? 1 : 0);
    const std::size_t outputs = request.folder ? 1 : 0;
    if (inputs == 0 || inputs + outputs < 2 || request.files.size() + outputs == 0)
        throw CCallError("corvel render needs an input and an output; see corvel render --help");
    const auto isEmpty = [](const std::string &name) { return name.empty(); };
    if (std::any_of(request.files.begin(), request.files.end(), isEmpty) || request.folder == "" ||
        request.list == "")
        throw CCallError("a file name is empty");
}

SJobs jobsFromFiles(const SFileRequest &request, const SFormatRequest &format,
                    const std::string &program) {
    requireFileNames(request);
    const CNamePattern pattern(request.name.value_or("{stem}"));
    std::vector<std::string> names = request.files;
    const STarget target = takeTarget(request, names);
    if (target.folder)
        requireEnding("--name", std::string("x").append(pattern.commonEnding()), format);
    else
        requireEnding(target.file.string(), target.file, format);

    const std::vector<SInput> inputs = inputsOf(request, std::move(names), target);
    SJobs result{{}, target.folder};
    for (const SInput &input : inputs) {
        fs::path out = target.file;
        if (target.folder) {
            out = *target.folder / input.below /
                  pattern.nameFor({input.file, program, result.jobs.size() + 1, inputs.size()});
            if (!pattern.hasEnding())
                out += endingFor(input.file, format);
        }
        result.jobs.push_back({input.file, out, input.problem});
    }
    if (!usesStream(result.jobs))
        requireInputsToSurvive(result.jobs);
    return result;
}

}  // namespace Tessitor::Tool
