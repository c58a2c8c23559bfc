#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Tessitor::Tool {

bool isUtf8(std::string_view bytes);
std::string utf8FromLatin1(std::string_view bytes);
/// @return nothing if a character is not in Latin-1, or the text is not UTF-8.
std::optional<std::string> latin1FromUtf8(std::string_view text);

/// @return the printable text in quotes for an error message, cut if it is long.
std::string shortQuote(std::string_view text);

}  // namespace Tessitor::Tool
