#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Tessitor::Tool {

// For texts that printable() returns.

/// @return how many columns of a terminal a text takes: two for a wide character, none for an
///         accent that is a character of its own. May be too many for rare characters, so that a
///         line never grows too long.
std::size_t columnsOf(std::string_view text);

/// @return the text if it fits, else its end after "...".
std::string endWithin(const std::string &text, std::size_t columns);

}  // namespace Tessitor::Tool
