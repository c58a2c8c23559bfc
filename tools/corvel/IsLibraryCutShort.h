#pragma once

#include <filesystem>

namespace Tessitor::Tool {

/// @return true if a Linux library is not all there. The loader does not look, and the program
/// would
///         end by a signal at the first byte that is missing. False for a whole library and for
///         every other kind of file, which the loader refuses in words.
bool isLibraryCutShort(const std::filesystem::path &file);

}  // namespace Tessitor::Tool
