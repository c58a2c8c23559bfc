#pragma once

#include <filesystem>
#include <string>

namespace Tessitor::Tool {

/// @return why a file cannot be read: "no such file", "not a file" or the system's reason; empty if
///         there is such a file.
std::string whyNoFile(const std::filesystem::path &file);

/// @return true if both names lead to the same file, which must exist.
bool isSameFile(const std::filesystem::path &a, const std::filesystem::path &b);

/// @return true if both files exist and the first was changed later than the second.
bool isNewer(const std::filesystem::path &file, const std::filesystem::path &other);

/// @return a name that is the same for all spellings of a place, whether something is there or not.
std::filesystem::path placeOf(const std::filesystem::path &file);

}  // namespace Tessitor::Tool
