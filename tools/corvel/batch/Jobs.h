#pragma once

#include "corvel/render/Render.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace Tessitor::Tool {

/// The file names on the command line.
struct SFileRequest {
    std::vector<std::string> files;     // the inputs, and last the output unless there is a folder
    std::optional<std::string> folder;  // for the outputs
};

struct SJobs {
    std::vector<SRenderJob> jobs;
    std::optional<std::filesystem::path> folder;  // for the outputs, if they go to a folder
};

/// In a folder, each output is named after its input. The last file is a folder if it exists as one
/// or ends in a slash.
/// @throws CCallError if there is no output, several inputs would be written to one file, or an
///         input would be overwritten.
SJobs jobsFromFiles(const SFileRequest &request, const SFormatRequest &format);

}  // namespace Tessitor::Tool
