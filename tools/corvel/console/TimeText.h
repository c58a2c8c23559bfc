#pragma once

#include <optional>
#include <string_view>

namespace Tessitor::Tool {

/// @param text  a number of seconds, or m:ss or h:mm:ss, all with fractions; or a number with the
///              unit s or ms. A comma may stand for the decimal point.
/// @return seconds, not negative; none if the text is not a time.
std::optional<double> secondsFromText(std::string_view text);

}  // namespace Tessitor::Tool
