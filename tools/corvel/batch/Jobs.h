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
    std::optional<std::string> list{};  // file with the names of more inputs
    bool recursive = false;             // folders are inputs, too
    std::optional<std::string> name{};  // pattern for the names in the folder
};

struct SJobs {
    std::vector<SRenderJob> jobs;
    std::optional<std::filesystem::path> folder;  // for the outputs, if they go to a folder
};

/// @throws CCallError if there is no input or no output, or if a name is empty.
void requireFileNames(const SFileRequest &request);

/// In a folder, each output is named after its input. An empty list gives no jobs. The last file is
/// a folder if it exists as one or ends in a slash. "-" is a stream, which only a single job can
/// read or write.
/// @param program  name of the program, for the names of the outputs.
/// @throws CCallError if requireFileNames() does, several inputs would be written to one file, or
///         an input would be overwritten; CJobError if the list cannot be read or a folder contains
///         nothing to render.
SJobs jobsFromFiles(const SFileRequest &request, const SFormatRequest &format,
                    const std::string &program);

}  // namespace Tessitor::Tool
