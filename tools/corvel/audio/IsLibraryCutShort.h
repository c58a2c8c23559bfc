#pragma once

#include <filesystem>

namespace Tessitor::Tool {

/// The loader does not notice if the end of a library is missing. A signal then kills the program
/// when it reads the first missing byte.
/// @return true if a Linux library is cut short. False for a complete library, and for other kinds
///         of file, which the loader refuses with an error message.
bool isLibraryCutShort(const std::filesystem::path &file);

}  // namespace Tessitor::Tool
