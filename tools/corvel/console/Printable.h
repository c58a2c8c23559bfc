#pragma once

#include <string>
#include <string_view>

namespace Tessitor::Tool {

/// @return a text that can be printed on one line: control characters and bytes that are not UTF-8
///         are escaped, as in "\n" and "\xFF".
std::string printable(std::string_view text);

}  // namespace Tessitor::Tool
