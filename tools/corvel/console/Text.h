#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Tessitor::Tool {

/// @return the text without leading and trailing spaces.
std::string_view trimmed(std::string_view text);

/// @return the parts between the separators, one more than there are separators.
std::vector<std::string_view> split(std::string_view text, char separator);

/// @return the number with that many decimal places; "-inf" and the like if it is not finite.
std::string decimal(double number, int places);

/// @return the shortest text that reads back as the same number.
std::string shortest(float number);

std::string inQuotes(std::string_view text);

bool equalInAnyCapitals(std::string_view a, std::string_view b);
bool beginsInAnyCapitals(std::string_view text, std::string_view beginning);

/// @return a table with one line per row, each column as wide as its widest cell. Cells are made
///         printable.
std::string inColumns(std::vector<std::vector<std::string>> rows);

}  // namespace Tessitor::Tool
