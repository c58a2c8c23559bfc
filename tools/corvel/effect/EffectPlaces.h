#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace Tessitor::Tool {

/// Where the effect is looked for if the user does not name it, the best place first: beside the
/// program as the build, a folder of its own or an installation puts it, then in the folders that
/// hosts search.
/// @param programFolder  the folder of the running program.
/// @param vstPath        folders separated by colons, as in the environment variable VST_PATH. If
///                       it is empty, the usual folders of hosts are used.
/// @param home           the user's home folder; may be empty.
/// @return full names of files that may or may not exist, each only once.
std::vector<std::filesystem::path> effectPlaces(const std::filesystem::path &programFolder,
                                                const std::string &vstPath,
                                                const std::string &home);

}  // namespace Tessitor::Tool
