#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Tessitor::Tool {

/// @return the text without spaces at its ends.
std::string_view trimmed(std::string_view text);

/// @return what stands between the separators: one more part than there are separators.
std::vector<std::string_view> split(std::string_view text, char separator);

/// @return the number with as many digits behind the point; "-inf" and the like for what is none.
std::string decimal(double number, int places);

/// @return the shortest text that reads back as the same number.
std::string shortest(float number);

bool equalInAnyCapitals(std::string_view a, std::string_view b);

/// @return the cells in columns, each as wide as its widest cell, one line to a row.
std::string inColumns(const std::vector<std::vector<std::string>> &rows);

}  // namespace Tessitor::Tool
