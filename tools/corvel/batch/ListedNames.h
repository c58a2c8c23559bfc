#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Tessitor::Tool {

/// @param text  one name per line, or if it contains a zero byte, one before each. A name is the
///              whole line, with all its spaces. Lines may end as on Windows.
/// @return the names that are not empty.
std::vector<std::string> listedNames(std::string_view text);

}  // namespace Tessitor::Tool
