#pragma once

#include <string_view>

namespace Tessitor::Tool {

/// @return what one of the channel strip's own programs is for; empty for other names.
std::string_view programDescription(std::string_view name);

}  // namespace Tessitor::Tool
