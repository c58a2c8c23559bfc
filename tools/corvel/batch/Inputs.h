#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace Tessitor::Tool {

/// A file to render.
struct SInput {
    std::filesystem::path file;
    std::filesystem::path below{};  // the path from the named folder to its own
    std::string problem{};          // why it cannot be rendered; empty if nothing is known
};

/// Replaces each folder with the audio files in it and in its sub-folders, in alphabetical order.
/// Links are followed, but not back to a folder that contains them. Hidden entries are left out.
/// @param output  this folder is left out too.
/// @return the files. A folder that cannot be read is an input with a problem.
std::vector<SInput> filesIn(const std::vector<std::string> &names,
                            const std::optional<std::filesystem::path> &output);

/// @return the names as inputs. A folder has a problem.
std::vector<SInput> filesNamed(const std::vector<std::string> &names);

}  // namespace Tessitor::Tool
