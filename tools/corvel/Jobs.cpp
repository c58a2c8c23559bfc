#include "corvel/Jobs.h"

#include "corvel/Errors.h"

#include <set>

namespace fs = std::filesystem;

namespace Tessitor::Tool {

namespace {

fs::path nameInFolder(const fs::path &folder, const fs::path &in, const SFormatRequest &format) {
    fs::path out = folder / in.filename();
    if (format.container != 0 && !isExtensionOf(format.container, out))
        out.replace_extension(extensionOf(format.container));
    return out;
}

}  // namespace

std::vector<SRenderJob> jobsFromFiles(const std::vector<std::string> &files,
                                      const SFormatRequest &format) {
    const fs::path target = files.back();
    const bool several = files.size() > 2;
    if (several && fs::exists(target) && !fs::is_directory(target))
        throw CCallError(target.string() + ": several inputs need a folder as output");
    const bool intoFolder = several || fs::is_directory(target);

    std::vector<SRenderJob> jobs;
    std::set<fs::path> inputs, outputs;
    for (auto in = files.begin(); in != files.end() - 1; ++in) {
        jobs.push_back({*in, intoFolder ? nameInFolder(target, *in, format) : target});
        inputs.insert(fs::weakly_canonical(*in));
        if (!outputs.insert(fs::weakly_canonical(jobs.back().out)).second)
            throw CCallError(jobs.back().out.string() +
                             ": two inputs would be written to this file");
    }
    for (const SRenderJob &job : jobs)
        if (inputs.contains(fs::weakly_canonical(job.out)))
            throw CCallError(job.out.string() + ": is also an input and would be overwritten");
    return jobs;
}

}  // namespace Tessitor::Tool
