#pragma once

#include <string>

namespace Tessitor::Tool {

/// @param file  "-" for standard input. It may also be a pipe.
/// @return all bytes.
/// @throws CJobError if it cannot be read.
std::string readAll(const std::string &file);

}  // namespace Tessitor::Tool
